// SPDX-License-Identifier: GPL-3.0-or-later
#include <QTimer>
#include <tuple>

#include "drawing_window.h"
#include "editor/messages.h"

namespace idrova {
namespace {

/// The main window with one pipe of water, selected.
class CommandPanel : public DrawingWindow {
  protected:
    void SetUp() override {
        project.settings.FluidDensity = 1000;
        Do("L2,5;L8,5;R5,5");
    }

    PipeRec& pipe = project.Pipes[1];
};

TEST_F(CommandPanel, EveryBoxReachesItsFieldAndMayBeRefused) {
    Walk(R"(Rettangolare # LabelSideA Combo2? # a [mm]|0
            Option6_1 # enabled Text12 Text13 Text10 Text9 # Text12 Text13
            Option1_1;Option2_1 # enabled Text10 Text9 # Text10 Text9
            Text12:3600)");
    EXPECT_EQ(pipe.FlowRate, 1);
    Walk(R"(
        LossSum:.75;Text13:1.8;Text6:12.5;Text7:500;Text8:250;Text5:3;Text11:4;Text10:2;Text9:1
        # Text13 Text6 Text7 Text8 Text5 Text11 Text10 Text9 LossSum # 1.8|12.5|500|250|3|4|2|1|.75)");
    EXPECT_EQ(std::tuple(pipe.FlowRate, pipe.Length, pipe.Diameter, pipe.OuterSize, pipe.Z1,
                         pipe.Z2, pipe.LossSum),
              std::tuple(.5, 12.5, .5, .25, 3, 4, .75));
    EXPECT_EQ(std::pair(project.Points[1].Pressure, project.Points[2].Pressure),
              std::pair(202650.0F, 101325.0F));
    Walk(R"(
        Circolare # Text12 LabelSideA Text8? # 1800|Diameter [mm]|0
        Option4;R5,5 # Text6 Text10 Option4 Frame3 Frame5 # 12.5|2.|1|Pipe 1|P2
        Text6=3;Text7=60;Text7!Ctrl+Z # Text6 Text7 # 3|500
        Text7!Ctrl+Z # Text6 Text7 # 12.5|500
        Text6:-5;Text5:-1 # Text6 Text5 # 0|0
        Text6=2. # Text6 # 2. # what is being typed stays as it is
        Combo2#6 # Text7 Combo2 # 53.8|2)");
    EXPECT_FLOAT_EQ(pipe.OuterSize, 0.0603F);
    EXPECT_EQ(pipe.FlowFromPoint, 2);
    Do("Text7=53");
    EXPECT_EQ(Child<QComboBox>("Combo2").currentIndex(), -1);

    project.settings.FluidDensity = 0;
    Child<QLineEdit>("Text13").setFocus();
    boxes.Expect(kFluidForVolumeFlow);
    Walk("Text13:5 # Text13 #");
    EXPECT_TRUE(Child<QLineEdit>("Text12").hasFocus());
    EXPECT_EQ(pipe.FlowRate, .5);
}

TEST_F(CommandPanel, ResultsOfAChangedPlantAreGreyAndStayInTheirMode) {
    project.settings.FluidViscosity = .001;
    Do("Option1_1;Option2_1;Text10=2;Text9=1;Text6=100;Text7=53.8;Command1");
    const QString flow = Shown("Text2");
    const auto textColour = [&] { return Child<QWidget>("Text2").palette().color(QPalette::Text); };
    const QColor fresh = textColour();
    Walk("Text6=90 # Text2 # " + flow);
    EXPECT_NE(textColour(), fresh);
    Do("Text6=100");
    EXPECT_EQ(textColour(), fresh) << "as computed";
    Walk("Tabella # Frame3 Text2 Text6 Text10 # Pipe|||");
}

TEST_F(CommandPanel, WhatIsTypedGoesToAllSelectedPipes) {
    const auto lengths = [this] { return std::pair(pipe.Length, project.Pipes[2].Length); };
    Walk(R"(L2,7;L8,7;R5,5;Text6=3;C5,7 # Frame3 Text6 Text7 # 2 pipes||0
            # enabled Frame3 Frame7 Frame4 Frame8 Text6 LossSum # Frame3 Text6 LossSum
            Text6=12)");
    EXPECT_EQ(lengths(), std::pair(12.0F, 12.0F));
    EXPECT_EQ(Item("Annulla").text(), "&Undo length of 2 pipes");
    Do("Annulla");
    EXPECT_EQ(lengths(), std::pair(3.0F, 0.0F));
    Walk("Text6!Esc # Frame3 Text6 # Pipe 1|3");
}

TEST_F(CommandPanel, FramesOpenWithARightClickAndLockWithALeftOne) {
    const QString all = " # enabled Frame3 Frame4 Frame8 Frame6 Command4 Command9 Command1 # ";
    const QString noPipe = all + "Frame6 Command4 Command9 Command1";
    Walk(all + "Frame3 Frame4 Frame8 Frame6 Command4 Command9 Command1\n" +  //
         "# enabled Text10 #\n" +                                            //
         "R20,20" + noPipe + "\nL20,20" + noPipe);  // the pipe takes components
    Do("Combo1!Esc");
    EXPECT_EQ(program->editor.state, InsertState::FirstPoint);
    Do("L20,20");
    QTest::mouseClick(View().viewport(), Qt::RightButton, {}, View().mapFromScene(300, 300));
    EXPECT_EQ(program->editor.state, InsertState::FirstPoint) << "beside the grid";
    Walk("L20,20;Tabella" + all + "Command1\nsintub" + all + "\nGrafico" + noPipe);
    EXPECT_EQ(program->editor.state, InsertState::FirstPoint);
}

TEST_F(CommandPanel, TheWheelChangesOnlyWhatHasTheKeyboard) {
    const auto wheel = [](QWidget& control) {
        const QPointF at(5, 5);
        QWheelEvent turn(at, control.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(&control, &turn);
    };
    Do("Combo2#6");
    auto& sizes = Child<QComboBox>("Combo2");
    EXPECT_EQ(sizes.focusPolicy(), Qt::StrongFocus);
    Child<QLineEdit>("Text6").setFocus();
    for (const char* name : {"Combo2", "Combo1", "Slider1"}) wheel(Child<QWidget>(name));
    EXPECT_EQ(Shown("Text7 Combo1"), "53.8|Pump");
    sizes.setFocus();
    wheel(sizes);
    EXPECT_EQ(sizes.currentIndex(), 7);
}

TEST_F(CommandPanel, ButtonsInsertShowDataDeleteAndRefuse) {
    const auto& insert = Child<QAbstractButton>("Command3");
    const auto isLit = [&insert] { return insert.styleSheet().contains("ffff00"); };
    Do("Combo1#1;Command3");
    EXPECT_TRUE(QTest::qWaitFor(isLit, 1000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isLit(); }, 1000));
    Do("L5,5");
    EXPECT_FALSE(isLit() || Child<QTimer>("Timer1").isActive());
    EXPECT_EQ(project.Cells[CellAt(5, 5, 50)].Name, "gate valve");
    Walk(R"(Combo1#0;Command3;L7,5;R7,5 # Command2? # 1
            R3,5 # Command2? # 0 # a pipe is selected, no pump
            Command4;Option1_1)");
    EXPECT_TRUE(program->editor.DataShown);
    const QImage labelled = View().grab().toImage();
    Do("Text10=2");
    EXPECT_NE(View().grab().toImage(), labelled) << "the label follows what is typed";
    const int lines = LinesDrawn();
    boxes.Expect(AskDeletePipe(1), Answer::Cancel).Expect(AskDeletePipe(1));
    Do("Command4;Command9");
    EXPECT_EQ(LinesDrawn(), lines);
    Walk("Command9 # enabled Frame3 #");
    EXPECT_EQ(LinesDrawn(), lines - 1);
    boxes.Expect(kFixedGridDimension);
    Do("Slider1#400");
    EXPECT_EQ(Child<QAbstractSlider>("Slider1").value(), 278);
}

}  // namespace
}  // namespace idrova
