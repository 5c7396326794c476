// SPDX-License-Identifier: GPL-3.0-or-later
#include <QComboBox>
#include <QGroupBox>
#include <QSlider>
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

    bool IsEnabled(const char* name) { return Child<QWidget>(name, &mdi->Panel()).isEnabled(); }

    PipeRec& pipe = project.Pipes[1];
};

TEST_F(CommandPanel, EveryBoxReachesItsField) {
    Choose("Rettangolare");
    Press("Option6_1");
    Press("Option1_1");
    Press("Option2_1");
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
        EXPECT_TRUE(Box(c.box).isVisible()) << c.box;
        Type(c.box, c.text);
        EXPECT_EQ(c.field(), c.stored) << c.box;
        EXPECT_EQ(Box(c.box).text(), c.text) << c.box;
    }
    EXPECT_EQ(Box("Text12").text(), "1800");
    Press("Option4");
    EXPECT_EQ(pipe.FlowFromPoint, 2);
    Select(5, 5);
    EXPECT_EQ(Box("Text6").text(), "12.5");
    EXPECT_EQ(Box("Text10").text(), "2.");
    EXPECT_TRUE(Child<QRadioButton>("Option4").isChecked());
    EXPECT_EQ(Child<QGroupBox>("Frame3").title(), "Pipe 1");
    EXPECT_EQ(Child<QGroupBox>("Frame5").title(), "P2");
}

TEST_F(CommandPanel, ReplacesWhatMayNotStand) {
    Type("Text6", "-5");
    EXPECT_EQ(Box("Text6").text(), "0");
    Type("Text5", "-1");
    EXPECT_EQ(Box("Text5").text(), "0");
    Box("Text6").setFocus();
    QTest::qWait(1);
    QTest::keyClicks(&Box("Text6"), "2.");
    EXPECT_EQ(Box("Text6").text(), "2.");
}

TEST_F(CommandPanel, ANominalSizeFillsBothDiameters) {
    auto& sizes = Child<QComboBox>("Combo2", &mdi->Panel());
    ASSERT_EQ(sizes.count(), 12);
    sizes.setCurrentIndex(6);
    EXPECT_EQ(Box("Text7").text(), "53.8");
    EXPECT_FLOAT_EQ(pipe.OuterSize, 0.0603F);
    Type("Text7", "53");
    EXPECT_EQ(sizes.currentIndex(), -1);
}

TEST_F(CommandPanel, VolumeFlowsNeedAFluid) {
    project.FluidDensity = 0;
    Press("Option6_1");
    Box("Text13").setFocus();
    boxes.Expect(kFluidForVolumeFlow);
    Type("Text13", "5");
    EXPECT_EQ(Box("Text13").text(), "");
    EXPECT_TRUE(Box("Text12").hasFocus());
    EXPECT_EQ(pipe.FlowRate, 0);
}

TEST_F(CommandPanel, FramesOpenWithARightClickAndLockWithALeftOne) {
    const auto enabled = [this] {
        QString names;
        for (const char* frame : {"Frame3", "Frame4", "Frame8", "Frame6"}) {
            if (IsEnabled(frame)) names += QString(frame) + " ";
        }
        return names;
    };
    EXPECT_EQ(enabled(), "Frame3 Frame4 Frame8 Frame6 ");
    EXPECT_FALSE(IsEnabled("Text10"));
    Press("Option1_1");
    EXPECT_TRUE(IsEnabled("Text10"));
    EXPECT_EQ(Box("Text10").text(), "");
    Select(20, 20);
    EXPECT_EQ(enabled(), "Frame6 ");  // no pipe to edit
    Click(20, 20);
    EXPECT_EQ(enabled(), "");
    Select(20, 20);
    Choose("Tabella");
    EXPECT_EQ(enabled(), "");
    EXPECT_FALSE(IsEnabled("Command9"));
}

TEST_F(CommandPanel, TheArmedButtonBlinks) {
    auto& button = Child<QPushButton>("Command3");
    const auto isLit = [&button] { return button.styleSheet().contains("ffff00"); };
    Child<QComboBox>("Combo1").setCurrentIndex(1);
    EXPECT_EQ(Child<QComboBox>("Combo3").currentText(), "gate valve");
    Press("Command3");
    EXPECT_EQ(Child<QTimer>("Timer1").interval(), 200);
    EXPECT_TRUE(QTest::qWaitFor(isLit, 1000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !isLit(); }, 1000));
    EXPECT_TRUE(QTest::qWaitFor(isLit, 1000));
    Click(5, 5);
    EXPECT_FALSE(isLit());
    EXPECT_FALSE(Child<QTimer>("Timer1").isActive());
    EXPECT_EQ(project.Cells[CellAt(5, 5, 50)].Name, "gate valve");
    EXPECT_FALSE(Child<QPushButton>("Command2").isVisible());
}

TEST_F(CommandPanel, ButtonsShowDataDeleteAndRefuse) {
    Press("Command4");
    EXPECT_TRUE(program->editor.DataShown);
    Press("Command4");
    EXPECT_FALSE(program->editor.DataShown);
    boxes.Expect(AskDeletePipe(1), Answer::Cancel);
    Press("Command9");
    EXPECT_EQ(LinesDrawn(), 1);
    boxes.Expect(AskDeletePipe(1));
    Press("Command9");
    EXPECT_EQ(LinesDrawn(), 0);
    EXPECT_FALSE(IsEnabled("Frame3"));
    boxes.Expect(kFixedGridDimension);
    Child<QSlider>("Slider1").setValue(400);
    EXPECT_EQ(Child<QSlider>("Slider1").value(), 278);
}

}  // namespace
}  // namespace idrova
