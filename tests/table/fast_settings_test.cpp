// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/fast_settings.h"

#include <gtest/gtest.h>

#include <memory>

#include "support/scripted_boxes.h"
#include "table/messages.h"

namespace idrova {
namespace {

class FastSettings : public testing::Test {
  protected:
    FastSettings() {
        project->numtubo = 2;
        for (std::size_t i = 1; i <= 3; ++i) project->Pipes[i] = original;
    }

    const PipeRec original{.FlowRate = 5, .Length = 6, .Diameter = 7, .OuterSize = 8};
    std::unique_ptr<Project> project = std::make_unique<Project>();
    ScriptedBoxes boxes;
};

TEST_F(FastSettings, NumbersGoToEveryPipeInUse) {
    SetAllFlowRates(*project, "3600 kg/h", boxes);
    SetAllLengths(*project, "12.5", boxes);
    SetAllDiameters(*project, FastDiameterText(6), boxes);
    const PipeRec expected{.FlowRate = 1, .Length = 12.5F, .Diameter = .0425F, .OuterSize = 8};
    EXPECT_EQ(project->Pipes[1], expected);
    EXPECT_EQ(project->Pipes[2], expected);
    EXPECT_EQ(project->Pipes[3], original);
    EXPECT_TRUE(project->FlowUnknown[1] && project->FlowUnknown[2]);
    EXPECT_FALSE(project->FlowUnknown[3]);
}

TEST_F(FastSettings, ZerosAreAskedAbout) {
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        EXPECT_EQ(project->Pipes[2], original);
        for (const FixedMessage& question : {kCancelFlowRates, kCancelLengths, kCancelDiameters}) {
            boxes.Expect(question, answer);
        }
        SetAllFlowRates(*project, "", boxes);
        SetAllLengths(*project, "abc", boxes);
        SetAllDiameters(*project, "0", boxes);
    }
    EXPECT_EQ(project->Pipes[2], PipeRec{.OuterSize = 8});
    EXPECT_TRUE(project->FlowUnknown[2]);
}

TEST_F(FastSettings, FieldRules) {
    EXPECT_EQ(FastLengthText("-5"), "0");
    EXPECT_EQ(FastLengthText("-0x"), "-0x");
    EXPECT_EQ(FastDiameterText(4), "27.9");
    EXPECT_EQ(FastDiameterText(13), "");
}

}  // namespace
}  // namespace idrova
