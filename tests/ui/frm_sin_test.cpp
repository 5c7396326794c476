// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_sin.h"

#include <cmath>

#include "hydraulics/messages.h"
#include "hydraulics/pipe_drop.h"
#include "main_window.h"

namespace idrova {
namespace {

class SinglePipeWindow : public MainWindow {
  protected:
    SinglePipeWindow() {
        project.settings.FluidDensity = 998.2;
        project.settings.FluidViscosity = 0.001002;
        Open("sintub", "FrmSin");
    }

    double Value(const char* box) { return Shown(box).toDouble(); }
};

TEST_F(SinglePipeWindow, ComputesTheFlowAtEveryChangeAndLeavesTheDrawingAlone) {
    project.Pipes[1].FlowRate = 7;
    project.settings.SectionType = Section::Rectangular;  // of the drawing: a single pipe is round
    Do("Text2=2;Text3=1;Text1=100");
    EXPECT_EQ(Shown("Text4"), "") << "there is no diameter yet";
    Do("Combo2#6");
    EXPECT_EQ(Shown("Text5"), "53.8");
    EXPECT_EQ(project.settings.SectionType, Section::Rectangular);
    project.settings.SectionType = Section::Circular;
    const double flow = Value("Text4") / 3600;
    double taken = flow;
    EXPECT_NEAR(PipeDrop(project.settings, .0538F, 0, taken, 100, 3e5), 101325, 20);
    const auto& arrow = Child<QWidget>("FlowArrow");
    EXPECT_EQ(arrow.accessibleName(), "Flow from point 1 to point 2");
    EXPECT_EQ(Child<QAbstractButton>("StatusOutcome").text(), "Computed");
    EXPECT_NE(FileBytes(folder / "out.dat").find("   Diameter [mm]"), std::string::npos);

    Do("Text3=3");
    EXPECT_NEAR(Value("Text4") / 3600, flow, 1e-3 * flow);
    EXPECT_EQ(arrow.accessibleName(), "Flow from point 2 to point 1");
    EXPECT_EQ(project.Pipes[1].FlowRate, 7);
}

TEST_F(SinglePipeWindow, UnknownIsYellowAndLockedAndItsArrowsAreToo) {
    const QString controls[] = {"Text2 Command3 Command4", "Text3 Command5 Command6",
                                "Text1 Command1 Command2", "Text4 Command7 Command8"};
    for (int chosen : {0, 1, 2, 3}) {
        Do("OptInc_" + QString::number(chosen));
        for (int i : {0, 1, 2, 3}) {
            EXPECT_EQ(Enabled(controls[i]), i == chosen ? "" : controls[i]);
            const auto& palette = Child<QWidget>(controls[i].left(5)).palette();
            EXPECT_EQ(palette.color(QPalette::Base), QColor(i == chosen ? 0xFFFFC0 : 0xFFFFFF));
        }
    }
}

TEST_F(SinglePipeWindow, StepsAndTurnsTheFlowToFindAPressure) {
    Do("OptInc_1;Text2=3;Text1=100;Text5=53.8;Command7;Command7;Command8;Command3;Command2");
    EXPECT_EQ(Shown("Text4 Text2 Text1"), "100|3.1|99");
    Do("Text4=9000");
    const double forward = Value("Text3");
    EXPECT_LT(forward, 3.05);
    Do("Command9");
    EXPECT_NEAR(Value("Text3") - 3.1, 3.1 - forward, 0.011);
    Do("Text5:;Text4=100;OptInc_2");
    // A length cannot be computed.
    boxes.Expect(RefusalBox({RefusalKind::TooManyTerms, {}, 3, 1, 3}));
    Do("Text5:50");
}

}  // namespace
}  // namespace idrova
