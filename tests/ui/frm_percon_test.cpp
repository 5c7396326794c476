// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frm_percon.h"

#include "data_window.h"
#include "physdata/messages.h"

namespace idrova {
namespace {

TEST_F(DataWindow, LossesAreShownSavedAndDeleted) {
    PutRecords<LossRecord>(
        {{"Valve", .2F, 0}, {"Filter", 0, 101325}, {"Both", 3, 5000}, {"None", 0, 0}});
    program->handOvers.RereadComponents();
    Open("PerditeCon", "FrmPerCon");
    // Of the option, coefficient, fixed drop and millibars.
    const std::pair<const char*, const char*> cases[] = {{"Combo1#0", "0|.2||"},
                                                         {"Combo1#1", "1||101325|1000."},
                                                         {"Combo1#3", "1||101325|1000."},
                                                         {"Combo1#0", "0|.2||."},
                                                         {"Combo1#2", "1||5000|49.346"},
                                                         {"Text1=7", "0|7||."},
                                                         {"Text2=202650", "1||202650|2000."},
                                                         {"Option1_0", "0|||."}};
    for (const auto& [step, shown] : cases) {
        Do(step);
        EXPECT_EQ(Shown("Option1_1 Text1 Text2 Label2"), shown) << step;
    }

    const QString longName(41, 'v');
    boxes.Expect(kZeroCoefficient)
        .Expect(BadName(LossRecord::kNameLimit, kAskSaveLoss.title))
        .Expect(kNoLossToDelete);
    Do("Combo1=" + longName + ";Text2=none;Command2;Text2=12x;Command2;Command3");
    EXPECT_EQ(Shown("Combo1 Text2"), longName + "|12x") << "a refusal keeps what is typed";

    for (const Answer answer : {Answer::No, Answer::Yes}) {
        boxes.Expect(kAskSaveLoss, answer);
        Do("Combo1=Elbow;Text1=1.5;Command2");
        EXPECT_EQ(Shown("Combo1 Text1"), "|") << "either answer starts anew";
        EXPECT_EQ(Names().size(), answer == Answer::Yes ? 5 : 4);
    }
    EXPECT_EQ(StoredRecords<LossRecord>()[4], (LossRecord{"Elbow", 1.5F, 0}));

    boxes.Expect(kAskDeleteLoss, Answer::Cancel).Expect(kAskDeleteLoss, Answer::Ok);
    Do("Combo1#1;Command3");
    EXPECT_EQ(Shown("Text2"), "101325");
    Do("Command3");
    EXPECT_EQ(Names(), QStringList({"Valve", "Both", "None", "Elbow"}));
    EXPECT_EQ(Shown("Text2"), "");
    EXPECT_EQ(StoredRecords<LossRecord>().size(), 4U);
}

}  // namespace
}  // namespace idrova
