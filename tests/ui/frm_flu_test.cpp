// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frm_flu.h"

#include "data_window.h"
#include "physdata/messages.h"

namespace idrova {
namespace {

class FluidWindow : public DataWindow {
  protected:
    FluidWindow() {
        PutRecords<FluidRecord>({{"Water", 998.2F, .001002F, 0, 4186, .6F, 0},
                                 {"Brine", 1100, .001002F, 0, 3800, .5F, -1},
                                 {"Nothing", 0, 1, 0, 0, 0, 0}});
        Open("Fluido", "FrmFlu");
    }
};

TEST_F(FluidWindow, ShowsTheFluidThatTheKeyboardChooses) {
    EXPECT_EQ(Names(), QStringList({"Water", "Brine", "Nothing"}));
    EXPECT_EQ(Shown("Combo1 Label8"), "|");
    QTest::keyClick(&Child<QComboBox>("Combo1"), Qt::Key_Down);
    EXPECT_EQ(Shown("Text1 Text6 Text5 Text3 Text4 Label8 Label9"),
              "998.2|1.002E-3|0|4186|.6|1|1.00E-6");
    QTest::mouseClick(&Child<QLineEdit>("Text1"), Qt::LeftButton);
    EXPECT_EQ(Shown("Label9"), "1.004E-6");
    Do("Combo1#1");  // the same viscosity in another density
    EXPECT_EQ(Shown("Label9"), "9.11E-7");
    Do("Text6=.0022");
    EXPECT_EQ(Shown("Label9"), "2.00E-6");
    Do("Combo1#2");  // no density: the label stays
    EXPECT_EQ(Shown("Label9"), "2.00E-6");
}

TEST_F(FluidWindow, SavesRenamesAddsAndDeletesOnlyWhatIsChosen) {
    boxes.Expect(kNoFluidToDelete).Expect(kNoFluidToSave).Expect(kNoFluidToDelete);
    Do("Combo1=Brine");
    EXPECT_EQ(Shown("Text1 Label8"), "|") << "a typed name chooses nothing";
    Do("Command3;Command2;Combo1#0;Combo1=Wat;Command3");

    boxes.Expect(kAskSaveFluid, Answer::Yes);
    Do("Combo1#1;Combo1=Glycol;Text1=1050;Command2");
    EXPECT_EQ(Names(), QStringList({"Water", "Glycol", "Nothing"}));
    EXPECT_EQ(Shown("Combo1"), "Glycol");
    EXPECT_EQ(StoredRecords<FluidRecord>()[1],
              (FluidRecord{"Glycol", 1050, .001002F, 0, 3800, .5F, -1}));

    const MessageBox badName = BadName(FluidRecord::kNameLimit, kAskSaveFluidAs.title);
    boxes.Expect(badName).Expect(badName);
    for (const QString& name : {QString(27, 'x'), QString("Øl — 5 €")}) {
        Do("Combo1:" + name + ";Command4");
        EXPECT_EQ(Shown("Combo1 Text1"), name + "|1050") << "a refusal keeps what is typed";
    }
    boxes.Expect(kAskSaveFluidAs, Answer::Yes);
    Do("Combo1:Olio più;Text5=.9;Check1;Command4");
    EXPECT_EQ(Shown("Combo1 Label8"), "Olio più|4");
    EXPECT_EQ(StoredRecords<FluidRecord>()[3],
              (FluidRecord{"Olio più", 1050, .001002F, .9F, 3800, .5F, 0}));

    boxes.Expect(kAskDeleteFluid, Answer::Cancel).Expect(kAskDeleteFluid, Answer::Ok);
    Do("Combo1#0;Command3");
    EXPECT_EQ(Names().size(), 4);
    Do("Command3");
    EXPECT_EQ(Names(), QStringList({"Glycol", "Nothing", "Olio più"}));
    EXPECT_EQ(Shown("Combo1 Label8 Text1"), "||998.2");
}

TEST_F(FluidWindow, UsesWhatIsTyped) {
    boxes.Expect(kRedefineVolumeFlows);
    project.numtubo = 1;
    Do("Combo1#1;Text1=1101 kg;Text1!");
    EXPECT_EQ(Window("FrmFlu"), nullptr);
    EXPECT_EQ(project.FluidDensity, 1101);
    EXPECT_EQ(Shown("StatusFluid"), "Fluid: [2] Brine");
    EXPECT_EQ(StoredRecords<FluidRecord>()[1].density, 1100);
}

TEST_F(DataWindow, AFluidDatabaseThatIsAFolderIsToldAndChangesNothing) {
    std::filesystem::remove(folder / "fluidi.dat");
    std::filesystem::create_directory(folder / "fluidi.dat");
    boxes.Expect({ReadRecords<FluidRecord>(folder.Path()).Error(), kFluidsTitle});
    Open("Fluido", "FrmFlu");
    Do("Text1=850;Command1");
    EXPECT_EQ(project.FluidDensity, 850);
}

}  // namespace
}  // namespace idrova
