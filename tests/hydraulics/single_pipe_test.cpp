// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/single_pipe.h"

#include <gtest/gtest.h>

#include <memory>

#include "support/scripted_boxes.h"

namespace idrova {
namespace {

constexpr struct {
    PipeQuantity unknown;
    const char *pressure1, *pressure2, *length, *diameter;
    std::string_view found;  ///< no box when empty; the flow is handed to the cases after it
} kCases[] = {
    {PipeQuantity::FlowRate, "2", "1", "100", "50", "flow"},
    {PipeQuantity::PressureAt1, "0", "1", "100", "50", "2."},
    {PipeQuantity::PressureAt2, "2", "0", "100", "50", "1."},
    {PipeQuantity::FlowRate, "2", "1", "100", "", ""},
    {PipeQuantity::FlowRate, "2", "1", "x", "50", ""},
};

TEST(SinglePipe, FindsEachUnknownAndNothingWithoutAPipe) {
    const auto project = std::make_unique<Project>();
    const auto work = std::make_unique<WorkNetwork>();
    project->FluidDensity = 998.2;
    project->FluidViscosity = 0.001002;
    project->BasePressure = -1e6F;
    project->Cells[7].Kind = CellKind::Pump;  // belongs to the drawing
    const auto before = std::make_unique<Project>(*project);
    ScriptedBoxes boxes;
    std::string flow = "0";
    for (const auto& typed : kCases) {
        SinglePipe pipe;
        pipe.unknown = typed.unknown;
        TypeQuantity(pipe, PipeQuantity::PressureAt1, typed.pressure1);
        TypeQuantity(pipe, PipeQuantity::PressureAt2, typed.pressure2);
        TypeQuantity(pipe, PipeQuantity::Length, typed.length);
        TypeQuantity(pipe, PipeQuantity::FlowRate, flow);
        TypeQuantity(pipe, PipeQuantity::Diameter, typed.diameter);
        const SinglePipeResult result =
            SinglePipeCompute(pipe, *project, *work, {.boxes = boxes, .seed = 1});
        const BoxText box = result.box.value_or(BoxText{typed.unknown, ""});
        EXPECT_EQ(box.box, typed.unknown);
        EXPECT_EQ(result.outcome.end, typed.found.empty() ? RunEnd::Empty : RunEnd::Settled);
        if (typed.found == "flow") {
            flow = box.text;
        } else {
            EXPECT_EQ(box.text, typed.found);
        }
    }
    EXPECT_EQ(*project, *before);
}

}  // namespace
}  // namespace idrova
