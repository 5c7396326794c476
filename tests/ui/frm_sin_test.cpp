// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_sin.h"

#include <cmath>
#include <numbers>

#include "base/number_text.h"
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
    bool IsGrey(const char* box) { return !Child<QWidget>(box).toolTip().isEmpty(); }
};

TEST_F(SinglePipeWindow, ComputesTheFlowAtEveryChangeAndReportsWhenTypingPauses) {
    project.Pipes[1].FlowRate = 7;
    project.settings.SectionType = Section::Rectangular;  // of the drawing: a single pipe is round
    Walk(R"(Text2=2;Text3=1;Text1=100 # Text4 Velocity # | # there is no diameter yet
            Combo2#5;Text5=60 # Combo2 #
            Combo2#6 # StatusOutcome # Computed)");
    project.settings.SectionType = Section::Circular;
    const double flow = Value("Text4") / 3600;
    double taken = flow;
    EXPECT_NEAR(PipeDrop(project.settings, .0538F, 0, taken, 100, 3e5), 101325, 20);
    const double area = std::numbers::pi / 4 * .0538 * .0538;
    EXPECT_EQ(Shown("Velocity DropPerMetre").toStdString(),
              FixedText(flow / 998.2 / area, 3) + "|1013.25");
    const auto& arrow = Child<QWidget>("FlowArrow");
    EXPECT_EQ(arrow.accessibleName(), "Flow from point 1 to point 2");
    EXPECT_TRUE(FileBytes(folder / "out.dat").empty());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !FileBytes(folder / "out.dat").empty(); }));
    EXPECT_NE(FileBytes(folder / "out.dat").find("   Diameter [mm]"), std::string::npos);

    Do("Text3=3");
    EXPECT_NEAR(Value("Text4") / 3600, flow, 1e-3 * flow);
    EXPECT_EQ(arrow.accessibleName(), "Flow from point 2 to point 1");
    Do("LossSum=1000");
    EXPECT_LT(Value("Text4") / 3600, .5 * flow);
    Do("LossSum=;t4");
    EXPECT_LT(Value("Text4") / 3600, .9 * flow) << "a setting changes it too";
    Do("t1");
    Walk("Text1= # Text4 # " + Shown("Text4"));
    EXPECT_TRUE(IsGrey("Text4") && IsGrey("Velocity"));
    Do("Text1=100");
    EXPECT_FALSE(IsGrey("Text4") || IsGrey("Velocity"));
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
    Walk(R"(OptInc_1;Text2=3;Text1=100;Text5=53.8;Command7;Command7;Command8;Command3;Command2
            # Text4 Text2 Text1 # 100|3.1|99
            Text1!Up # Text1 # 100
            Text4=9000)");
    const double forward = Value("Text3");
    EXPECT_LT(forward, 3.05);
    Do("Command9");
    EXPECT_NEAR(Value("Text3") - 3.1, 3.1 - forward, 0.011);
    Do("Text1!Tab");
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "Text4") << "past arrows and unknown";
    Do("OptInc_2;Text5=50");
    boxes.Expect(RefusalBox({RefusalKind::TooManyTerms, {}, 3, 1, 3}));  // once, not with every key
    Window("FrmSin")->TakeEdits();
}

}  // namespace
}  // namespace idrova
