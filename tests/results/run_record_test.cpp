// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/run_record.h"

#include <gtest/gtest.h>

#include <functional>

#include "results/result_age.h"
#include "support/networks.h"

namespace idrova {
namespace {

TEST(RunRecord, ResultsAreOutOfDateWhenWhatTheyDependOnDiffers) {
    using Change = std::function<void(Project&)>;
    const Change gas = [](auto& p) { p.settings.EquationType = Equation::Compressible; };
    const Change table = [](auto& p) { p.settings.Mode = WorkMode::Table; };
    const struct {
        Change change;
        bool outOfDate;
        const char* what = "";
        Change before = [](auto&) {};
    } cases[] = {
        {[](auto& p) { p.Pipes[2].FlowRate = -3; }, false, "a computed flow"},
        {[](auto& p) { p.Pipes[2].FlowFromPoint = 3; }, false, "its reference end"},
        {[](auto& p) { p.Points[2].Pressure = 5; }, false, "a computed pressure"},
        {[](auto& p) { p.Cells[7].Result = 5, p.Cells[7].Name = "Other"; }, false, "a result"},
        {[](auto& p) { p.settings.BasePressure = 5; }, false, "a liquid's base pressure"},
        {[](auto& p) { p.settings.FluidTemperature = 5; }, false, "a liquid's temperature"},
        {[](auto& p) { p.settings.PressureUnit = Unit::MilliBar; }, false, "the unit"},
        {[](auto& p) { p.settings.FluidName = "Wine"; }, false, "the name"},
        {[](auto& p) { p.Pipes[1].OuterSize = 1; }, false, "the outer diameter"},
        {[](auto& p) { p.TableRows[2].RowLength = 1; }, false, "the table"},
        {[](auto& p) { p.Pipes[1].FlowRate = 3; }, true, "a given flow"},
        {[](auto& p) { p.Pipes[1].FlowFromPoint = 2; }, true, "its direction"},
        {[](auto& p) { p.FlowUnknown[2] = false; }, true, "which flows are given"},
        {[](auto& p) { p.Points[1].Pressure = 5; }, true, "a given pressure"},
        {[](auto& p) { p.PressureUnknown[2] = false; }, true, "which pressures are given"},
        {[](auto& p) { p.Pipes[1].Z2 = 5; }, true, "a height"},
        {[](auto& p) { p.Pipes[2].Length = 5; }, true, "a length"},
        {[](auto& p) { p.Pipes[2].LossSum = 5; }, true, "the losses of a pipe's own fittings"},
        {[](auto& p) { p.Pipes[2].X1 = kDeleted; }, true, "a pipe deleted"},
        {[](auto& p) { p.Cells[7].Param1 = 5; }, true, "a component"},
        {[](auto& p) { p.Cells[7].Placed = false; }, true, "a component deleted"},
        {[](auto& p) { p.settings.FluidDensity = 5; }, true, "the density"},
        {[](auto& p) { p.settings.FluidViscosity = 5; }, true, "the viscosity"},
        {[](auto& p) { p.settings.Roughness = 5; }, true, "the roughness"},
        {[](auto& p) { p.settings.SectionType = Section::Rectangular; }, true, "the section"},
        {gas, true, "the equation"},
        {[](auto& p) { p.settings.BasePressure = 5; }, true, "a gas's base pressure", gas},
        {[](auto& p) { p.settings.FluidTemperature = 5; }, true, "a gas's temperature", gas},
        {table, true, "the mode"},
        {[](auto& p) { p.TableRows[2].P1Given = true; }, true, "a row of the table", table},
        {[](auto& p) { p.Pipes[2].Length = 5; }, false, "the drawing, of the table", table},
    };
    for (const auto& c : cases) {
        NetworkBuilder network(3);
        network.SetFlow(network.AddPipe(1, 2), 1);
        network.AddPipe(2, 3);
        network.SetPressure(1, 1e5F);
        network->Cells[7] = {.Name = "Pump", .Kind = CellKind::Pump, .Param1 = -1, .Placed = true};
        c.before(*network);
        RunRecord record;
        record.inputs = InputsOf(*network);
        c.change(*network);
        EXPECT_EQ(IsUpToDate(&record, *network), !c.outOfDate) << c.what;
        EXPECT_TRUE(HoldsOldResults(&record, *network)) << "a run without results";
        record.results.emplace();
        EXPECT_EQ(HoldsOldResults(&record, *network), c.outOfDate) << c.what;
    }
}

TEST(RunRecord, ResultsWithoutARecordAreOld) {
    NetworkBuilder network(3);
    network.SetFlow(network.AddPipe(1, 2), 1);
    network.AddPipe(2, 3);
    network.SetPressure(1, 1e5F);
    EXPECT_FALSE(HoldsOldResults(nullptr, *network)) << "drawn, not yet computed";
    for (float* value : {&network->Pipes[2].FlowRate, &network->Points[2].Pressure}) {
        *value = -5;
        EXPECT_TRUE(HoldsOldResults(nullptr, *network)) << "opened";
        *value = 0;
    }
}

TEST(RunRecord, FlowsTurnWithTheDrawingOnly) {
    NetworkBuilder network(4);
    for (int from = 1; from <= 3; ++from) network.AddPipe(from, from + 1);
    RunRecord record;
    TurnFlowsWith(*network, record);  // a run without results
    record.results.emplace();
    CopyNetwork(*network, *record.results);
    for (PipeRec& pipe : record.results->WorkPipes) pipe.FlowRate = -5;
    network->Pipes[2].FlowFromPoint = 3;
    network->Pipes[3].FlowFromPoint = 1;  // drawn anew since
    for (const auto& [mode, flow] : {std::pair(WorkMode::Table, -5), {WorkMode::Graphic, 5}}) {
        record.settings.Mode = mode;
        TurnFlowsWith(*network, record);
        EXPECT_EQ(record.results->WorkPipes[2].FlowRate, flow);
        EXPECT_EQ(record.results->WorkPipes[2].FlowFromPoint, flow < 0 ? 2 : 3);
        EXPECT_EQ(record.results->WorkPipes[1].FlowRate, -5);
        EXPECT_EQ(record.results->WorkPipes[3].FlowRate, -5);
    }
}

}  // namespace
}  // namespace idrova
