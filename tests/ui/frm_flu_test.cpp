// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frm_flu.h"

#include <QCheckBox>

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
    EXPECT_EQ(List().currentText() + Label("Label8"), "");
    QTest::keyClick(&List(), Qt::Key_Down);
    EXPECT_EQ(Text("Text1"), "998.2");
    EXPECT_EQ(Text("Text6"), "1.002E-3");
    EXPECT_EQ(Text("Text5"), "0");
    EXPECT_EQ(Text("Text3"), "4186");
    EXPECT_EQ(Text("Text4"), ".6");
    EXPECT_EQ(Label("Label8"), "1");
    EXPECT_EQ(Label("Label9"), "1.00E-6");
    QTest::mouseClick(&Child<QLineEdit>("Text1", window), Qt::LeftButton);
    EXPECT_EQ(Label("Label9"), "1.004E-6");
    List().setCurrentIndex(1);  // the same viscosity in another density
    EXPECT_EQ(Label("Label9"), "9.11E-7");
    Type("Text6", ".0022");
    EXPECT_EQ(Label("Label9"), "2.00E-6");
    List().setCurrentIndex(2);  // no density: the label stays
    EXPECT_EQ(Label("Label9"), "2.00E-6");
}

TEST_F(FluidWindow, ATypedNameNeitherChoosesAFluidNorLeavesOneChosen) {
    boxes.Expect(kNoFluidToDelete).Expect(kNoFluidToSave).Expect(kNoFluidToDelete);
    TypeName("Brine");
    EXPECT_EQ(Text("Text1") + Label("Label8"), "");
    Press("Command3");
    Press("Command2");
    List().setCurrentIndex(0);
    TypeName("Wat");
    EXPECT_EQ(List().currentText(), "Wat");
    Press("Command3");
    EXPECT_EQ(StoredRecords<FluidRecord>().size(), 3U);
}

TEST_F(FluidWindow, SavesRenamesAddsAndDeletes) {
    boxes.Expect(kAskSaveFluid, Answer::Yes);
    List().setCurrentIndex(1);
    TypeName("Glycol");
    Type("Text1", "1050");
    Press("Command2");
    EXPECT_EQ(Names(), QStringList({"Water", "Glycol", "Nothing"}));
    EXPECT_EQ(List().currentText(), "Glycol");
    EXPECT_EQ(StoredRecords<FluidRecord>()[1],
              (FluidRecord{"Glycol", 1050, .001002F, 0, 3800, .5F, -1}));

    boxes.Expect(kAskSaveFluidAs, Answer::Yes);
    TypeName("Olio più");
    Type("Text5", ".9");
    Press("Check1");
    Press("Command4");
    EXPECT_EQ(List().currentText(), "Olio più");
    EXPECT_EQ(Label("Label8"), "4");
    EXPECT_EQ(StoredRecords<FluidRecord>()[3],
              (FluidRecord{"Olio più", 1050, .001002F, .9F, 3800, .5F, 0}));

    boxes.Expect(kAskDeleteFluid, Answer::Cancel).Expect(kAskDeleteFluid, Answer::Ok);
    List().setCurrentIndex(0);
    Press("Command3");
    EXPECT_EQ(List().count(), 4);
    Press("Command3");
    EXPECT_EQ(Names(), QStringList({"Glycol", "Nothing", "Olio più"}));
    EXPECT_EQ(List().currentText() + Label("Label8"), "");
    EXPECT_EQ(Text("Text1"), "998.2");
}

TEST_F(FluidWindow, UsesWhatIsTyped) {
    boxes.Expect(kRedefineVolumeFlows);
    program->project.numtubo = 1;
    List().setCurrentIndex(1);
    Type("Text1", "1101 kg");
    QTest::keyClick(&Child<QLineEdit>("Text1", window), Qt::Key_Return);
    EXPECT_EQ(Window("FrmFlu"), nullptr);
    EXPECT_EQ(program->project.FluidDensity, 1101);
    EXPECT_EQ(Child<QLabel>("StatusFluid").text(), "Fluid: [2] Brine");
    EXPECT_EQ(StoredRecords<FluidRecord>()[1].density, 1100);
}

TEST_F(FluidWindow, StaysUsableAfterARefusal) {
    const MessageBox badName = BadName(FluidRecord::kNameLimit, kAskSaveFluidAs.title);
    boxes.Expect(badName).Expect(badName);
    Type("Text1", "850");
    for (const QString& name : {QString(27, 'x'), QString("Øl — 5 €")}) {
        TypeName(name);
        Press("Command4");
        EXPECT_EQ(List().currentText(), name);
        EXPECT_EQ(Text("Text1"), "850");
    }
    EXPECT_EQ(StoredRecords<FluidRecord>().size(), 3U);
}

TEST_F(DataWindow, AFluidDatabaseThatIsAFolderIsToldAndChangesNothing) {
    std::filesystem::remove(folder / "fluidi.dat");
    std::filesystem::create_directory(folder / "fluidi.dat");
    const auto told = ReadRecords<FluidRecord>(folder.Path());
    ASSERT_FALSE(told);
    boxes.Expect({told.Error(), kFluidsTitle});
    Open("Fluido", "FrmFlu");
    Type("Text1", "850");
    Press("Command1");
    EXPECT_EQ(program->project.FluidDensity, 850);
}

}  // namespace
}  // namespace idrova
