// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frm_sin.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <cmath>

#include "hydraulics/messages.h"
#include "hydraulics/pipe_drop.h"
#include "main_window.h"

namespace idrova {
namespace {

class SinglePipeWindow : public MainWindow {
  protected:
    SinglePipeWindow() {
        program->project.FluidDensity = 998.2;
        program->project.FluidViscosity = 0.001002;
        Choose("sintub");
    }

    QLineEdit& Box(const char* name) { return Child<QLineEdit>(name, Window("FrmSin")); }
    double Value(const char* box) { return Box(box).text().toDouble(); }
    void Type(const std::vector<std::pair<const char*, const char*>>& texts) {
        for (const auto& [box, text] : texts) Box(box).setText(text);
    }
    QString Flow() { return Child<QWidget>("FlowArrow").accessibleName(); }
};

TEST_F(SinglePipeWindow, ComputesTheFlowAtEveryChangeAndLeavesTheDrawingAlone) {
    program->project.Pipes[1].FlowRate = 7;
    Type({{"Text2", "2"}, {"Text3", "1"}, {"Text1", "100"}});
    EXPECT_EQ(Box("Text4").text(), "") << "there is no diameter yet";
    Child<QComboBox>("Combo2", Window("FrmSin")).setCurrentIndex(6);
    EXPECT_EQ(Box("Text5").text(), "53.8");
    const double flow = Value("Text4") / 3600;
    double taken = flow;
    EXPECT_NEAR(PipeDrop(program->project, .0538F, 0, taken, 100, 3e5), 101325, 20);
    EXPECT_EQ(Flow(), "Flow from point 1 to point 2");
    EXPECT_TRUE(Child<QToolButton>("StatusOutcome").text().startsWith("Computed in"));
    EXPECT_NE(FileBytes(folder / "out.dat").find("RESULTS"), std::string::npos);

    Type({{"Text3", "3"}});
    EXPECT_NEAR(Value("Text4") / 3600, flow, 1e-3 * flow);
    EXPECT_EQ(Flow(), "Flow from point 2 to point 1");
    EXPECT_EQ(program->project.Pipes[1].FlowRate, 7);
}

TEST_F(SinglePipeWindow, UnknownIsYellowAndLockedAndItsArrowsAreToo) {
    struct Option {
        const char *option, *box, *more, *less;
    };
    const std::vector<Option> options{{"OptInc_0", "Text2", "Command3", "Command4"},
                                      {"OptInc_1", "Text3", "Command5", "Command6"},
                                      {"OptInc_2", "Text1", "Command1", "Command2"},
                                      {"OptInc_3", "Text4", "Command7", "Command8"}};
    for (const Option& chosen : options) {
        Child<QRadioButton>(chosen.option).click();
        for (const Option& shown : options) {
            const bool known = &shown != &chosen;
            EXPECT_EQ(Box(shown.box).isEnabled(), known);
            EXPECT_EQ(Box(shown.box).palette().color(QPalette::Base),
                      known ? QColor(0xFFFFFF) : QColor(0xFFFFC0));
            for (const char* arrow : {shown.more, shown.less}) {
                EXPECT_EQ(Child<QToolButton>(arrow, Window("FrmSin")).isEnabled(), known);
            }
        }
    }
}

TEST_F(SinglePipeWindow, StepsAndTurnsTheFlowToFindAPressure) {
    Child<QRadioButton>("OptInc_1").click();
    Type({{"Text2", "3"}, {"Text1", "100"}, {"Text5", "53.8"}});
    for (const char* arrow : {"Command7", "Command7", "Command8", "Command3", "Command2"}) {
        Child<QToolButton>(arrow, Window("FrmSin")).click();
    }
    EXPECT_EQ(Box("Text4").text(), "100");
    EXPECT_EQ(Box("Text2").text(), "3.1");
    EXPECT_EQ(Box("Text1").text(), "99");
    Type({{"Text4", "9000"}});
    const double forward = Value("Text3");
    EXPECT_LT(forward, 3.05);
    Child<QPushButton>("Command9", Window("FrmSin")).click();
    EXPECT_NEAR(Value("Text3") - 3.1, 3.1 - forward, 0.011);
}

TEST_F(SinglePipeWindow, LengthCanNotBeTheUnknown) {
    Type({{"Text2", "2"}, {"Text3", "1"}, {"Text4", "100"}});
    Child<QRadioButton>("OptInc_2").click();
    boxes.Expect(IndefiniteSystem(3, 1, 3));
    Type({{"Text5", "50"}});
}

}  // namespace
}  // namespace idrova
