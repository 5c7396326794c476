// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/single_pipe.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "support/scripted_boxes.h"

namespace idrova {
namespace {

TEST(SinglePipe, FindsEachUnknownAndNothingWithoutAPipe) {
    struct Case {
        PipeQuantity unknown;
        const char *pressure1, *pressure2, *length, *diameter;
        RunEnd end;
    };
    const std::vector<Case> cases{
        {PipeQuantity::FlowRate, "2", "1", "100", "50", RunEnd::Settled},
        {PipeQuantity::PressureAt1, "0", "1", "100", "50", RunEnd::Settled},
        {PipeQuantity::PressureAt2, "2", "0", "100", "50", RunEnd::Settled},
        {PipeQuantity::FlowRate, "2", "1", "100", "", RunEnd::Empty},
        {PipeQuantity::FlowRate, "2", "1", "x", "50", RunEnd::Empty},
    };
    const auto project = std::make_unique<Project>();
    const auto work = std::make_unique<WorkNetwork>();
    project->FluidDensity = 998.2;
    project->FluidViscosity = 0.001002;
    ScriptedBoxes boxes;
    std::string flow = "0";
    for (const Case& typed : cases) {
        SinglePipe pipe;
        pipe.unknown = typed.unknown;
        TypeQuantity(pipe, PipeQuantity::PressureAt1, typed.pressure1);
        TypeQuantity(pipe, PipeQuantity::PressureAt2, typed.pressure2);
        TypeQuantity(pipe, PipeQuantity::Length, typed.length);
        TypeQuantity(pipe, PipeQuantity::FlowRate, flow);
        TypeQuantity(pipe, PipeQuantity::Diameter, typed.diameter);
        const SinglePipeResult result =
            SinglePipeCompute(pipe, *project, *work, {.boxes = boxes, .seed = 1});
        EXPECT_EQ(result.outcome.end, typed.end);
        ASSERT_EQ(result.box.has_value(), typed.end == RunEnd::Settled);
        if (!result.box) continue;
        EXPECT_EQ(result.box->box, typed.unknown);
        if (typed.unknown == PipeQuantity::FlowRate) flow = result.box->text;
        if (typed.unknown == PipeQuantity::PressureAt1) {
            EXPECT_EQ(result.box->text, "2.");
        } else if (typed.unknown == PipeQuantity::PressureAt2) {
            EXPECT_EQ(result.box->text, "1.");
        }
    }
}

}  // namespace
}  // namespace idrova
