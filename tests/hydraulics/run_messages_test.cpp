// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

#include "hydraulics/run_settings.h"
#include "support/network_run.h"

namespace idrova {
namespace {

using Boxes = std::vector<MessageBox>;

/// One pipe between points at 3 and 2 bar.
NetworkBuilder OnePipe() {
    NetworkBuilder network(2);
    network.AddPipe(1, 2);
    network.SetPressure(1, 3e5F);
    network.SetPressure(2, 2e5F);
    return network;
}

/// A pipe that a pump cuts, with a pressure at its start and a deleted pipe beside it.
NetworkBuilder PumpedPipe() {
    NetworkBuilder network = CutPipe(CellKind::Pump);
    network.SetPressure(1, 3e5F);
    PipeRec& deleted = network->Pipes[network.AddPipe(1, network.AddPoint(9, 9))];
    deleted.X1 = deleted.StartPoint = deleted.EndPoint = kDeleted;
    network->Points[5].X = kDeleted;
    return network;
}

/// The counts balance, because the second pipe has too little.
void OverdetermineFirstPipe(NetworkBuilder& network) {
    network.AddPoint(6, 2);
    network.AddPoint(8, 2);
    network.SetPressure(3, 1e5F);
    network.AddPipe(3, 4);
    network.SetFlow(1, 1);
}

void TooCold(NetworkBuilder& network) {
    MakeAir(*network);
    network->settings.FluidTemperature = -273.15F;
}

void ForgetSizes(NetworkBuilder& network) {
    OverdetermineFirstPipe(network);
    for (const int pipe : {1, 2}) network->Pipes[pipe].Length = network->Pipes[pipe].Diameter = 0;
}

void LevelPressures(NetworkBuilder& network) {
    OverdetermineFirstPipe(network);
    network.SetPressure(2, 3e5F);
}

const struct {
    std::function<void(NetworkBuilder&)> spoil;
    const char *title, *text;
    RunEnd end = RunEnd::Refused;
} kRefusals[] = {
    {[](auto& n) { n->settings.FluidDensity = 0; }, "Fluid", "Select a fluid"},
    {[](auto& n) { n->settings.EquationType = Equation::Compressible; },
     "Compressibilitynot defined", "The selected fluid is uncompressible"},
    {TooCold, "Calculation data", "The temperature is not above absolute zero (-273.15 °C)"},
    {ForgetSizes, "Check", "Pipe  1 with zero lenght"},
    {[](auto& n) { n->Pipes[1].Diameter = 0; }, "Check", "Pipe  1 with zero diameter"},
    {[](auto& n) { n->settings.SectionType = Section::Rectangular; }, "Check",
     "Pipe  1 with zero diameter"},
    {[](auto& n) { n = PumpedPipe(); }, "Unsolving system",
     " 6 Unknowns >  4 Equations + 1 Known terms\rSet  1 flow rates and/or pressures"},
    {[](auto& n) { n.SetFlow(1, 1); }, "Indefinite system",
     " 3 Unknowns <  1 Equations + 3 Known terms\rDelete  1 known terms"},
    {[](auto& n) { n = LoopedNetwork(8, 12); }, "Unsolving system",
     "Too many unknowns: 202 (max 200)"},
    {OverdetermineFirstPipe, "Data oherence check", "Pipes  1 with not coherent data"},
    {LevelPressures, "Data oherence check", "Pipes  1 with not coherent data"},
    {[](auto& n) { n.SetPressure(1, INFINITY); }, "Computation",
     "The computation does not settle: no results", RunEnd::NotFinite},
};

TEST(RunMessages, RefusalsChangeNothing) {
    for (const auto& c : kRefusals) {
        NetworkBuilder network = OnePipe();
        c.spoil(network);
        const auto before = std::make_unique<Project>(*network);
        const NetworkRun run(network);
        EXPECT_EQ(run.boxes.shown, Boxes{MessageBox(c.text, c.title)});
        EXPECT_EQ(run.outcome.end, c.end);
        EXPECT_EQ(run.reports, 0);
        EXPECT_EQ(*network, *before);
        auto copied = std::make_unique<WorkNetwork>();
        CopyNetwork(*before, *copied);
        EXPECT_EQ(run.work->WorkPipes, copied->WorkPipes);
        EXPECT_EQ(run.work->WorkPoints, copied->WorkPoints);
    }
    NetworkBuilder empty;
    const NetworkRun run(empty);
    EXPECT_EQ(run.outcome.end, RunEnd::Empty);
    EXPECT_EQ(run.boxes.shown, Boxes{});
    EXPECT_EQ(run.reports, 0);
}

TEST(RunMessages, NegativePressuresOfferABasePressure) {
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        NetworkBuilder network = OnePipe();
        network.SetPressure(2, -20000);
        const NetworkRun run(network, 1, answer);
        const MessageBox question(
            "Some pressures are negative, probably due to a close circuit\rDo you want to"
            " automatically define a new value for the base pressure ?\rActual value =  0 bar",
            "Pressure check", BoxIcon::Information, BoxButtons::YesNo);
        EXPECT_EQ(run.boxes.shown, Boxes{question});
        EXPECT_EQ(network->settings.BasePressure, answer == Answer::Yes ? 20000 : 0);
    }
}

TEST(RunMessages, PumpsOutOfRangeAreListedInDrawnNetworksOnly) {
    const MessageBox outOfRange("The pumps  205 , work with a flow rate out range",
                                "Working point check", BoxIcon::Information);
    for (const bool table : {false, true}) {
        NetworkBuilder network = PumpedPipe();
        network.SetFlow(1, 1);
        if (table) {
            network->settings.Mode = WorkMode::Table;
            for (const int point : {3, 4}) network.SetPressure(point, 3e5F);
        }
        CellRec& pump = network->Cells[network->Points[2].Cell];
        pump.MinFlow = 1;
        EXPECT_EQ(NetworkRun(network).boxes.shown, Boxes{});
        pump.MinFlow = 2;
        EXPECT_EQ(NetworkRun(network).boxes.shown, table ? Boxes{} : Boxes{outOfRange});
        EXPECT_EQ(pump.Result, table ? 0 : 1);
    }
}

TEST(RunNotes, TellWhatNoPlantCanHave) {
    NetworkBuilder network = LoopedNetwork(2, 1);
    EXPECT_THAT(NetworkRun(network).outcome.notes, testing::IsEmpty());
    network->settings.BasePressure = -1e9F;
    network->settings.FluidViscosity = 0;
    EXPECT_THAT(NetworkRun(network).outcome.notes,
                testing::ElementsAre("The fluid has no viscosity",
                                     testing::HasSubstr("would be below a vacuum")));
}

TEST(RunSettings, CalculationDataAreReadAndShown) {
    Settings settings;
    SetCalculationData(settings, {}, {"2.5", "20 C"});
    EXPECT_EQ(settings.BasePressure, 2.5F * 101325);
    EXPECT_EQ(ShowCalculationData(settings).basePressure, "2.5");
    EXPECT_EQ(ShowCalculationData(settings).temperature, "20");
    settings.BasePressure = 20000;  // ".1973847" bar is not quite that
    const CalculationData shown = ShowCalculationData(settings);
    SetCalculationData(settings, shown, {shown.basePressure, "30"});
    EXPECT_EQ(settings.BasePressure, 20000);
    EXPECT_EQ(settings.FluidTemperature, 30);
}

}  // namespace
}  // namespace idrova
