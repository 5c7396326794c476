// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frm_pompa.h"

#include "data_window.h"
#include "physdata/messages.h"

namespace idrova {
namespace {

class PumpWindow : public DataWindow {
  protected:
    PumpWindow() {
        PutRecords<PumpRecord>(
            {TypedPump({"First", "30", "0", "10", "3600"}), {"Level", 200000, 1, 100000, 1}});
        LoadComponentDatabases(program->components, folder.Path(), boxes);
        Open("Pompe", "FrmPompa");
    }
    QString Chart() { return Child<QWidget>("MSChart1", window).accessibleDescription(); }
};

TEST_F(PumpWindow, ShowsFieldsCurveAndChart) {
    EXPECT_EQ(Chart(), "");
    const QImage before = window->grab().toImage();
    List().setCurrentIndex(0);
    EXPECT_EQ(Text("Text1"), "30.");
    EXPECT_EQ(Text("Text2"), ".");
    EXPECT_EQ(Text("Text3"), "10.");
    EXPECT_EQ(Text("Text4"), "3600.");
    EXPECT_EQ(Label("Label8"), "0");
    EXPECT_EQ(Label("Label6").left(10), "-206574.92");
    EXPECT_EQ(Label("Label11").left(9), "309862.38");
    EXPECT_EQ(Chart(), "From 30. m at . kg/h to 11.95 m at 3420. kg/h");
    EXPECT_NE(window->grab().toImage(), before);
    Type("Text6", "1800");
    EXPECT_EQ(Text("Text5"), "25.");
}

TEST_F(PumpWindow, APumpWithoutACurveKeepsTheOneBefore) {
    List().setCurrentIndex(0);
    const QString a = Label("Label6");
    const QString chart = Chart();
    List().setCurrentIndex(1);
    EXPECT_EQ(Text("Text4"), "3600.");
    EXPECT_EQ(Text("Text2"), "3600.");
    EXPECT_EQ(Label("Label6"), a);
    EXPECT_EQ(Chart(), chart);
}

TEST_F(PumpWindow, ANewPumpIsListedChosenAndOfferedForInsertion) {
    Type("Text6", "3600");
    Type("Text1", "40");
    Type("Text3", "20");
    Type("Text4", "7200");
    boxes.Expect(kAskSavePump, Answer::No).Expect(kAskSavePump, Answer::Yes);
    TypeName("New");
    Press("Command2");
    EXPECT_EQ(List().count(), 2);
    Press("Command2");
    EXPECT_EQ(Names(), QStringList({"First", "Level", "New"}));
    EXPECT_EQ(List().currentText(), "New");
    EXPECT_EQ(Text("Text5"), "35.");
    EXPECT_EQ(StoredRecords<PumpRecord>()[2], TypedPump({"New", "40", "", "20", "7200"}));
    EXPECT_EQ(Child<QComboBox>("Combo3").findText("New"), 2);
}

TEST_F(PumpWindow, DeletesOnlyWhatIsChosen) {
    List().setCurrentIndex(0);
    Press("Command3");
    EXPECT_EQ(Names(), QStringList("Level"));
    EXPECT_EQ(Text("Text1"), "30.");
    boxes.Expect(kNoPumpToDelete).Expect(kNoPumpToDelete);
    Press("Command3");
    TypeName("Level");
    Press("Command3");
    EXPECT_EQ(StoredRecords<PumpRecord>().size(), 1U);
}

}  // namespace
}  // namespace idrova
