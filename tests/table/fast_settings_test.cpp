// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/fast_settings.h"

#include <gtest/gtest.h>

#include <memory>

#include "support/scripted_boxes.h"
#include "table/messages.h"

namespace idrova {
namespace {

TEST(FastSettings, NumbersGoToEveryPipeInUseAndZerosAreAskedAbout) {
    const auto project = std::make_unique<Project>();
    const PipeRec original{.FlowRate = 5, .Length = 6, .Diameter = 7, .OuterSize = 8};
    const PipeRec expected{.FlowRate = 1, .Length = 12.5F, .Diameter = .0425F, .OuterSize = 8};
    project->numtubo = 2;
    project->Pipes[2] = project->Pipes[3] = original;
    ScriptedBoxes boxes;
    SetAllFlowRates(*project, "3600 kg/h", boxes);
    SetAllLengths(*project, "12.5", boxes);
    SetAllDiameters(*project, "42.5", boxes);
    EXPECT_EQ(project->Pipes[3], original);
    EXPECT_TRUE(project->FlowUnknown[1] && project->FlowUnknown[2] && !project->FlowUnknown[3]);
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        EXPECT_EQ(project->Pipes[2], expected);
        for (const FixedMessage& question : {kCancelFlowRates, kCancelLengths, kCancelDiameters}) {
            boxes.Expect(question, answer);
        }
        SetAllFlowRates(*project, "", boxes);
        SetAllLengths(*project, "abc", boxes);
        SetAllDiameters(*project, "0", boxes);
    }
    EXPECT_EQ(project->Pipes[2], PipeRec{.OuterSize = 8});
}

}  // namespace
}  // namespace idrova
