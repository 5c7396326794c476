// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frm_percon.h"

#include "data_window.h"
#include "physdata/messages.h"

namespace idrova {
namespace {

class LossWindow : public DataWindow {
  protected:
    LossWindow() {
        PutRecords<LossRecord>(
            {{"Valve", .2F, 0}, {"Filter", 0, 101325}, {"Both", 3, 5000}, {"None", 0, 0}});
        LoadComponentDatabases(program->components, folder.Path(), boxes);
        Open("PerditeCon", "FrmPerCon");
    }
    /// Option, coefficient, fixed drop and millibars as the window shows them.
    QString Shown() {
        const bool loss = Child<QAbstractButton>("Option1_1", window).isChecked();
        return QString(loss ? "1" : "0") + "|" + Text("Text1") + "|" + Text("Text2") + "|" +
               Label("Label2");
    }
};

TEST_F(LossWindow, ShowsTheChosenLoss) {
    const std::pair<int, const char*> cases[] = {{0, "0|.2||"},
                                                 {1, "1||101325|1000."},
                                                 {3, "1||101325|1000."},
                                                 {0, "0|.2||."},
                                                 {2, "1||5000|49.346"}};
    for (const auto& [position, shown] : cases) {
        List().setCurrentIndex(position);
        EXPECT_EQ(Shown(), shown) << position;
    }
}

TEST_F(LossWindow, OneOfTheTwoFieldsHoldsAValue) {
    Type("Text1", "7");
    EXPECT_EQ(Shown(), "0|7||");
    Type("Text2", "202650");
    EXPECT_EQ(Shown(), "1||202650|2000.");
    Press("Option1_0");
    EXPECT_EQ(Shown(), "0|||.");
}

TEST_F(LossWindow, StartsAnewAfterEveryAnswer) {
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        boxes.Expect(kAskSaveLoss, answer);
        TypeName("Elbow");
        Type("Text1", "1.5");
        Press("Command2");
        EXPECT_EQ(List().currentText() + Text("Text1"), "");
        EXPECT_EQ(List().count(), answer == Answer::Yes ? 5 : 4);
    }
    EXPECT_EQ(StoredRecords<LossRecord>()[4], (LossRecord{"Elbow", 1.5F, 0}));

    boxes.Expect(kAskDeleteLoss, Answer::Cancel).Expect(kAskDeleteLoss, Answer::Ok);
    List().setCurrentIndex(1);
    Press("Command3");
    EXPECT_EQ(Text("Text2"), "101325");
    Press("Command3");
    EXPECT_EQ(Names(), QStringList({"Valve", "Both", "None", "Elbow"}));
    EXPECT_EQ(Text("Text2"), "");
    EXPECT_EQ(StoredRecords<LossRecord>().size(), 4U);
}

TEST_F(LossWindow, RefusalsKeepWhatIsTyped) {
    boxes.Expect(kZeroCoefficient)
        .Expect(BadName(LossRecord::kNameLimit, kAskSaveLoss.title))
        .Expect(kNoLossToDelete);
    TypeName(QString(41, 'v'));
    Type("Text2", "none");
    Press("Command2");
    Type("Text2", "12x");
    Press("Command2");
    Press("Command3");
    EXPECT_EQ(List().currentText(), QString(41, 'v'));
    EXPECT_EQ(Text("Text2"), "12x");
}

}  // namespace
}  // namespace idrova
