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
        program->handOvers.RereadComponents();
        Open("Pompe", "FrmPompa");
    }
    QString Chart() { return Child<QWidget>("MSChart1").accessibleDescription(); }
};

TEST_F(PumpWindow, ShowsFieldsCurveAndChart) {
    EXPECT_EQ(Chart(), "");
    const QImage before = window->grab().toImage();
    Do("Combo1#0;Text6=1800");
    EXPECT_EQ(Shown("Text1 Text2 Text3 Text4 Label8 Text5"), "30.|.|10.|3600.|0|25.");
    EXPECT_EQ(Shown("Label6").left(10) + Shown("Label11").left(9), "-206574.92309862.38");
    const QString chart = "From 30. m at . kg/h to 11.95 m at 3420. kg/h";
    EXPECT_EQ(Chart(), chart);
    EXPECT_NE(window->grab().toImage(), before);
    Do("Combo1#1");
    EXPECT_EQ(Shown("Text2 Text4 Text5"), "3600.|3600.|25.") << "no curve: the one before stays";
    EXPECT_EQ(Chart(), chart);
}

TEST_F(PumpWindow, ANewPumpIsListedChosenAndOfferedForInsertion) {
    boxes.Expect(kAskSavePump, Answer::No).Expect(kAskSavePump, Answer::Yes);
    Do("Text6=3600;Text1=40;Text3=20;Text4=7200;Combo1=New;Text6!;Command2");
    EXPECT_EQ(Names().size(), 2);
    Do("Text4!");
    EXPECT_EQ(Names(), QStringList({"First", "Level", "New"}));
    EXPECT_EQ(Shown("Combo1 Text5"), "New|35.");
    EXPECT_EQ(StoredRecords<PumpRecord>()[2], TypedPump({"New", "40", "", "20", "7200"}));
    EXPECT_EQ(Child<QComboBox>("Combo3").findText("New"), 2);
}

}  // namespace
}  // namespace idrova
