// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/single_pipe.h"

#include <gtest/gtest.h>

#include <memory>

#include "support/scripted_boxes.h"

namespace idrova {
namespace {

TEST(SinglePipe, FindsEachUnknownAndNothingWithoutAPipe) {
    const auto project = std::make_unique<Project>();
    const auto work = std::make_unique<WorkNetwork>();
    project->settings.FluidDensity = 998.2;
    project->settings.FluidViscosity = 0.001002;
    project->settings.BasePressure = -1e6F;
    project->Cells[7].Kind = CellKind::Pump;  // belongs to the drawing
    const auto before = std::make_unique<Project>(*project);
    ScriptedBoxes boxes;
    SinglePipe pipe;
    const auto find = [&](PipeQuantity unknown) {
        pipe.unknown = unknown;
        const SinglePipeResult result =
            SinglePipeCompute(pipe, *project, *work, {.boxes = boxes, .seed = 1});
        EXPECT_EQ(result.outcome.end, result.box ? RunEnd::Settled : RunEnd::Empty);
        return result.box.value_or(BoxText()).text;
    };
    TypeQuantity(pipe, PipeQuantity::PressureAt1, "2");
    TypeQuantity(pipe, PipeQuantity::PressureAt2, "1");
    TypeQuantity(pipe, PipeQuantity::Length, "100");
    EXPECT_EQ(find(PipeQuantity::FlowRate), "");  // it has no diameter yet
    TypeQuantity(pipe, PipeQuantity::Diameter, "50");
    TypeQuantity(pipe, PipeQuantity::FlowRate, find(PipeQuantity::FlowRate));
    EXPECT_GT(pipe.flowRate, 1);
    pipe.pressure1 = 0;
    EXPECT_EQ(find(PipeQuantity::PressureAt1), "2.");
    TypeQuantity(pipe, PipeQuantity::PressureAt1, "2");
    pipe.pressure2 = 0;
    EXPECT_EQ(find(PipeQuantity::PressureAt2), "1.");
    TypeQuantity(pipe, PipeQuantity::Length, "x");
    EXPECT_EQ(find(PipeQuantity::FlowRate), "");
    EXPECT_EQ(*project, *before);
}

}  // namespace
}  // namespace idrova
