// SPDX-License-Identifier: GPL-3.0-or-later
#include <QTimer>

#include "drawing_window.h"
#include "editor/messages.h"

namespace idrova {
namespace {

/// The main window with one pipe of water, selected.
class CommandPanel : public DrawingWindow {
  protected:
    CommandPanel() {
        project.FluidDensity = 1000;
        Draw(2, 5, 8, 5);
        Select(5, 5);
    }

    PipeRec& pipe = project.Pipes[1];
};

TEST_F(CommandPanel, EveryBoxReachesItsField) {
    Choose("Rettangolare");
    EXPECT_EQ(Shown("LabelSideA"), "a [mm]");
    EXPECT_FALSE(Child<QComboBox>("Combo2").isVisible());
    Do("Option6_1;Option1_1;Option2_1");
    const struct {
        const char* box;
        const char* text;
        std::function<double()> field;
        double stored;
    } cases[] = {
        {"Text12", "3600", [&] { return pipe.FlowRate; }, 1},
        {"Text13", "1.8", [&] { return pipe.FlowRate; }, 0.5},
        {"Text6", "12.5", [&] { return pipe.Length; }, 12.5},
        {"Text7", "500", [&] { return pipe.Diameter; }, 0.5},
        {"Text8", "250", [&] { return pipe.OuterSize; }, 0.25},
        {"Text5", "3", [&] { return pipe.Z1; }, 3},
        {"Text11", "4", [&] { return pipe.Z2; }, 4},
        {"Text10", "2", [&] { return project.Points[1].Pressure; }, 202650},
        {"Text9", "1", [&] { return project.Points[2].Pressure; }, 101325},
    };
    for (const auto& c : cases) {
        EXPECT_TRUE(Child<QLineEdit>(c.box).isVisible()) << c.box;
        Do(QString(c.box) + ":" + c.text);
        EXPECT_EQ(c.field(), c.stored) << c.box;
        EXPECT_EQ(Shown(c.box), c.text) << c.box;
    }
    Choose("Circolare");
    EXPECT_EQ(Shown("Text12 LabelSideA"), "1800|Diameter [mm]");
    EXPECT_FALSE(Child<QLineEdit>("Text8").isVisible());
    Do("Option4");
    EXPECT_EQ(pipe.FlowFromPoint, 2);
    Select(5, 5);
    EXPECT_EQ(Shown("Text6 Text10 Option4 Frame3 Frame5"), "12.5|2.|1|Pipe 1|P2");
}

TEST_F(CommandPanel, ReplacesWhatMayNotStandAndFillsBothDiameters) {
    Do("Text6:-5;Text5:-1");
    EXPECT_EQ(Shown("Text6 Text5"), "0|0");
    Child<QLineEdit>("Text6").setFocus();
    QTest::qWait(1);
    QTest::keyClicks(&Child<QLineEdit>("Text6"), "2.");
    EXPECT_EQ(Shown("Text6"), "2.");
    Do("Combo2#6");
    EXPECT_EQ(Shown("Text7 Combo2"), "53.8|2");
    EXPECT_FLOAT_EQ(pipe.OuterSize, 0.0603F);
    Do("Text7=53");
    EXPECT_EQ(Child<QComboBox>("Combo2").currentIndex(), -1);
}

TEST_F(CommandPanel, VolumeFlowsNeedAFluid) {
    project.FluidDensity = 0;
    Do("Option6_1");
    Child<QLineEdit>("Text13").setFocus();
    boxes.Expect(kFluidForVolumeFlow);
    Do("Text13=5");
    EXPECT_EQ(Shown("Text13"), "");
    EXPECT_TRUE(Child<QLineEdit>("Text12").hasFocus());
    EXPECT_EQ(pipe.FlowRate, 0);
}

TEST_F(CommandPanel, FramesOpenWithARightClickAndLockWithALeftOne) {
    const QString controls = "Frame3 Frame4 Frame8 Frame6 Command4 Command9 Command1";
    EXPECT_EQ(Enabled(controls + " Text10"), controls);
    Do("Option1_1");
    EXPECT_EQ(Enabled("Text10") + Shown("Text10"), "Text10");
    Select(20, 20);
    EXPECT_EQ(Enabled(controls), "Frame6 Command4 Command9 Command1");  // no pipe to edit
    Click(20, 20);
    EXPECT_EQ(Enabled(controls), "Command4 Command9 Command1");
    Choose("Tabella");
    EXPECT_EQ(Enabled(controls), "Command1");
    Choose("sintub");
    EXPECT_EQ(Enabled(controls), "");
    Choose("Grafico");
    EXPECT_EQ(Enabled(controls), "Frame6 Command4 Command9 Command1") << "as after a right click";
    EXPECT_EQ(program->editor.state, InsertState::FirstPoint);
}

TEST_F(CommandPanel, TheArmedButtonBlinks) {
    const auto& button = Child<QAbstractButton>("Command3");
    const auto isLit = [&button] { return button.styleSheet().contains("ffff00"); };
    Do("Combo1#1");
    EXPECT_EQ(Shown("Combo3"), "gate valve");
    Do("Command3");
    EXPECT_EQ(Child<QTimer>("Timer1").interval(), 200);
    EXPECT_TRUE(QTest::qWaitFor(isLit, 1000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isLit(); }, 1000));
    Click(5, 5);
    EXPECT_FALSE(isLit() || Child<QTimer>("Timer1").isActive());
    EXPECT_EQ(project.Cells[CellAt(5, 5, 50)].Name, "gate valve");
    EXPECT_FALSE(Child<QWidget>("Command2").isVisible());
}

TEST_F(CommandPanel, ButtonsShowDataDeleteAndRefuse) {
    Do("Command4");
    EXPECT_TRUE(program->editor.DataShown);
    Do("Command4");
    EXPECT_FALSE(program->editor.DataShown);
    boxes.Expect(AskDeletePipe(1), Answer::Cancel);
    Do("Command9");
    EXPECT_EQ(LinesDrawn(), 1);
    boxes.Expect(AskDeletePipe(1)).Expect(kFixedGridDimension);
    Do("Command9");
    EXPECT_EQ(LinesDrawn(), 0);
    EXPECT_EQ(Enabled("Frame3"), "");
    Do("Slider1#400");
    EXPECT_EQ(Child<QAbstractSlider>("Slider1").value(), 278);
}

}  // namespace
}  // namespace idrova
