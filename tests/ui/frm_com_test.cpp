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
    CommandPanel() {
        project.settings.FluidDensity = 1000;
        Draw(2, 5, 8, 5);
        Select(5, 5);
    }

    PipeRec& pipe = project.Pipes[1];
};

TEST_F(CommandPanel, EveryBoxReachesItsFieldAndMayBeRefused) {
    Choose("Rettangolare");
    EXPECT_EQ(Shown("LabelSideA"), "a [mm]");
    EXPECT_FALSE(Child<QComboBox>("Combo2").isVisible());
    Do("Option6_1;Option1_1;Option2_1;Text12:3600");
    EXPECT_EQ(pipe.FlowRate, 1);
    const QString boxesInUse = "Text13 Text6 Text7 Text8 Text5 Text11 Text10 Text9 LossSum";
    Do("LossSum:.75;Text13:1.8;Text6:12.5;Text7:500;Text8:250;Text5:3;Text11:4;Text10:2;Text9:1");
    EXPECT_EQ(Shown(boxesInUse), "1.8|12.5|500|250|3|4|2|1|.75");
    EXPECT_EQ(
        std::tuple(pipe.FlowRate, pipe.Length, pipe.Diameter, pipe.OuterSize, pipe.Z1, pipe.Z2),
        std::tuple(.5, 12.5, .5, .25, 3, 4));
    EXPECT_EQ(pipe.LossSum, .75F);
    EXPECT_EQ(std::pair(project.Points[1].Pressure, project.Points[2].Pressure),
              std::pair(202650.0F, 101325.0F));
    Choose("Circolare");
    EXPECT_EQ(Shown("Text12 LabelSideA"), "1800|Diameter [mm]");
    EXPECT_FALSE(Child<QLineEdit>("Text8").isVisible());
    Do("Option4");
    EXPECT_EQ(pipe.FlowFromPoint, 2);
    Select(5, 5);
    EXPECT_EQ(Shown("Text6 Text10 Option4 Frame3 Frame5"), "12.5|2.|1|Pipe 1|P2");

    Do("Text6=3;Text7=60");
    QTest::keyClick(&Child<QLineEdit>("Text7"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Shown("Text6 Text7"), "3|500");
    QTest::keyClick(&Child<QLineEdit>("Text7"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Shown("Text6 Text7"), "12.5|500");

    Do("Text6:-5;Text5:-1");
    EXPECT_EQ(Shown("Text6 Text5"), "0|0");
    Do("Text6=2.");
    EXPECT_EQ(Shown("Text6"), "2.") << "what is being typed stays as it is";
    Do("Combo2#6");
    EXPECT_EQ(Shown("Text7 Combo2"), "53.8|2");
    EXPECT_FLOAT_EQ(pipe.OuterSize, 0.0603F);
    Do("Text7=53");
    EXPECT_EQ(Child<QComboBox>("Combo2").currentIndex(), -1);

    project.settings.FluidDensity = 0;
    Child<QLineEdit>("Text13").setFocus();
    boxes.Expect(kFluidForVolumeFlow);
    Do("Text13:5");
    EXPECT_EQ(Shown("Text13"), "");
    EXPECT_TRUE(Child<QLineEdit>("Text12").hasFocus());
    EXPECT_EQ(pipe.FlowRate, .5);
}

TEST_F(CommandPanel, ResultsOfAChangedPlantAreGreyAndStayInTheirMode) {
    project.settings.FluidViscosity = .001;
    Do("Option1_1;Option2_1;Text10=2;Text9=1;Text6=100;Text7=53.8;Command1");
    const QString flow = Shown("Text2");
    const auto textColour = [&] { return Child<QWidget>("Text2").palette().color(QPalette::Text); };
    const QColor fresh = textColour();
    Do("Text6=90");
    EXPECT_EQ(Shown("Text2"), flow);
    EXPECT_NE(textColour(), fresh);
    Do("Text6=100");
    EXPECT_EQ(textColour(), fresh) << "as computed";
    Choose("Tabella");
    EXPECT_EQ(Shown("Frame3 Text2 Text6 Text10"), "Pipe|||");
}

TEST_F(CommandPanel, WhatIsTypedGoesToAllSelectedPipes) {
    Draw(2, 7, 8, 7);
    Select(5, 5);
    Do("Text6=3");
    QTest::mouseClick(View().viewport(), Qt::RightButton, Qt::ControlModifier, PlaceOf(5, 7));
    EXPECT_EQ(Shown("Frame3 Text6 Text7"), "2 pipes||0");
    EXPECT_EQ(Enabled("Frame3 Frame7 Frame4 Frame8 Text6 LossSum"), "Frame3 Text6 LossSum");
    Do("Text6=12");
    EXPECT_EQ(std::pair(pipe.Length, project.Pipes[2].Length), std::pair(12.0F, 12.0F));
    EXPECT_EQ(Item("Annulla").text(), "&Undo length of 2 pipes");
    Choose("Annulla");
    EXPECT_EQ(std::pair(pipe.Length, project.Pipes[2].Length), std::pair(3.0F, 0.0F));
    QTest::keyClick(&Child<QWidget>("Text6"), Qt::Key_Escape);
    EXPECT_EQ(Shown("Frame3 Text6"), "Pipe 1|3");
}

TEST_F(CommandPanel, FramesOpenWithARightClickAndLockWithALeftOne) {
    const QString controls = "Frame3 Frame4 Frame8 Frame6 Command4 Command9 Command1";
    EXPECT_EQ(Enabled(controls + " Text10"), controls);
    Select(20, 20);
    EXPECT_EQ(Enabled(controls), "Frame6 Command4 Command9 Command1");  // no pipe to edit
    Click(20, 20);
    EXPECT_EQ(Enabled(controls), "Frame6 Command4 Command9 Command1")
        << "the pipe takes components";
    Child<QComboBox>("Combo1").setFocus();
    QTest::keyClick(&Child<QComboBox>("Combo1"), Qt::Key_Escape);
    EXPECT_EQ(program->editor.state, InsertState::FirstPoint);
    Click(20, 20);
    QTest::mouseClick(View().viewport(), Qt::RightButton, {}, View().mapFromScene(300, 300));
    EXPECT_EQ(program->editor.state, InsertState::FirstPoint) << "beside the grid";
    Click(20, 20);
    Choose("Tabella");
    EXPECT_EQ(Enabled(controls), "Command1");
    Choose("sintub");
    EXPECT_EQ(Enabled(controls), "");
    Choose("Grafico");
    EXPECT_EQ(Enabled(controls), "Frame6 Command4 Command9 Command1") << "as after a right click";
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
    Click(5, 5);
    EXPECT_FALSE(isLit() || Child<QTimer>("Timer1").isActive());
    EXPECT_EQ(project.Cells[CellAt(5, 5, 50)].Name, "gate valve");
    Do("Combo1#0;Command3");
    Click(7, 5);
    Select(7, 5);
    EXPECT_TRUE(Child<QWidget>("Command2").isVisible());
    Select(3, 5);
    EXPECT_FALSE(Child<QWidget>("Command2").isVisible()) << "a pipe is selected, no pump";

    Do("Command4;Option1_1");
    EXPECT_TRUE(program->editor.DataShown);
    const QImage labelled = View().grab().toImage();
    Do("Text10=2");
    EXPECT_NE(View().grab().toImage(), labelled) << "the label follows what is typed";
    const int lines = LinesDrawn();
    boxes.Expect(AskDeletePipe(1), Answer::Cancel).Expect(AskDeletePipe(1));
    Do("Command4;Command9");
    EXPECT_EQ(LinesDrawn(), lines);
    Do("Command9");
    EXPECT_EQ(LinesDrawn(), lines - 1);
    EXPECT_EQ(Enabled("Frame3"), "");
    boxes.Expect(kFixedGridDimension);
    Do("Slider1#400");
    EXPECT_EQ(Child<QAbstractSlider>("Slider1").value(), 278);
}

}  // namespace
}  // namespace idrova
