// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "hydraulics/messages.h"
#include "hydraulics/run_notes.h"
#include "hydraulics/run_results.h"
#include "hydraulics/run_settings.h"
#include "support/network_run.h"
#include "support/scripted_boxes.h"

namespace idrova {
namespace {

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

CellRec& PumpOf(NetworkBuilder& network) {
    return network->Cells[network->Points[2].Cell];
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
} kRefusals[] = {
    {[](auto& n) { n->settings.FluidDensity = 0; }, "Fluid", "Select a fluid"},
    {[](auto& n) { n->settings.FluidDensity = -1; }, "Fluid",
     "The density of the fluid is negative"},
    {[](auto& n) { n->settings.FluidViscosity = 0; }, "Fluid", "The fluid has no viscosity"},
    {[](auto& n) { n->settings.FluidViscosity = -1e-3; }, "Fluid",
     "The viscosity of the fluid is negative"},
    {[](auto& n) { n->settings.EquationType = Equation::Compressible; },
     "Compressibilitynot defined", "The selected fluid is uncompressible"},
    {TooCold, "Calculation data", "The temperature is not above absolute zero (-273.15 °C)"},
    {ForgetSizes, "Check", "Pipe  1 with zero lenght"},
    {[](auto& n) { n->Pipes[1].Diameter = -0.1F; }, "Check", "Pipe  1 with zero diameter"},
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
};

TEST(RunMessages, RefusalsChangeNothing) {
    for (const auto& c : kRefusals) {
        NetworkBuilder network = OnePipe();
        c.spoil(network);
        const NetworkRun run(network);
        EXPECT_EQ(run.outcome.end, RunEnd::Refused);
        EXPECT_EQ(RefusalBox(run.outcome.refusal.value()), MessageBox(c.text, c.title));
        auto copied = std::make_unique<WorkNetwork>();
        CopyNetwork(*network, *copied);
        EXPECT_EQ(run.work->WorkPipes, copied->WorkPipes);
        EXPECT_EQ(run.work->WorkPoints, copied->WorkPoints);
    }
    const NetworkRun run(NetworkBuilder{});
    EXPECT_EQ(run.outcome.end, RunEnd::Empty);
    EXPECT_EQ(run.outcome.refusal, std::nullopt);
}

TEST(RunMessages, NegativePressuresOfferABasePressure) {
    const MessageBox question(
        "Some pressures are negative, probably due to a close circuit\rDo you want to"
        " automatically define a new value for the base pressure ?\rActual value =  0 bar",
        "Pressure check", BoxIcon::Information, BoxButtons::YesNo);
    EXPECT_EQ(NegativePressures(0), question);
    NetworkBuilder network = PumpedPipe();
    network->Points[4].Pressure = -20000;
    network->Points[5].Pressure = -1e9F;  // deleted
    network->settings.BasePressure = 5000;
    const auto work = std::make_unique<WorkNetwork>();
    CopyNetwork(*network, *work);
    EXPECT_EQ(AddBasePressure(network->settings, *work), -15000);
    EXPECT_EQ(work->WorkPoints[1].Pressure, 305000);
}

TEST(RunMessages, PumpsOutOfRangeAreListed) {
    NetworkBuilder network = PumpedPipe();
    CellRec& pump = PumpOf(network);
    pump.Result = -1;
    for (const auto& [least, most] : {std::pair{0.F, 1.F}, {1, 2}, {1.5F, 2}, {0, .5F}}) {
        pump.MinFlow = least;
        pump.MaxFlow = most;
        const auto work = std::make_unique<WorkNetwork>();
        CopyNetwork(*network, *work);
        EXPECT_EQ(PumpsOutOfRange(*work).empty(), least <= 1 && most >= 1);
        work->WorkComponents[0].record.Placed = false;
        EXPECT_TRUE(PumpsOutOfRange(*work).empty());
    }
    const MessageBox box("The pumps  205 , 7 , work with a flow rate out range",
                         "Working point check", BoxIcon::Information);
    EXPECT_EQ(OutOfRangePumps({205, 7}), box);
}

/// 1 kg/s through a pump for 1.5 kg/s and more.
void PumpLittle(NetworkBuilder& network) {
    network = PumpedPipe();
    network.SetFlow(1, 1);
    PumpOf(network).Param2 = 1e5F;
    PumpOf(network).MinFlow = 1.5F;
}

/// Through 0.05 m with air at 2.01 bar absolute, where sound at constant temperature has 287 m/s.
void BlowAir(NetworkBuilder& network, float flow) {
    network = NetworkBuilder(2);
    network.AddPipe(1, 2, 1, 0.05F);
    network.SetPressure(2, 1e5F);
    network.SetFlow(1, flow);
    MakeAir(*network);
}

/// Re 1000 in 0.1 m, where the formula gives 0.0174 and the laminar law 0.016.
void FlowSlowly(NetworkBuilder& network) {
    network = NetworkBuilder(4);
    network.AddPipe(1, 2);
    network.AddPipe(2, 3, 100, 0.5F);  // loses nothing that counts
    network.SetFlow(network.AddPipe(3, 4), 0.0785375F);
    network.SetPressure(1, 3e5F);
}

/// A component between two pipes of 9 m.
auto Cut(CellKind kind, std::array<float, 3> numbers, float from, float to = 0) {
    return [=](NetworkBuilder& n) { n = CutPipe({9, .1F}, kind, numbers, {9, .1F}, from, to); };
}

constexpr const char* kOpensUpwards =
    "The curve of the pump in column 5, row 5 opens upwards: there may be two working points";
constexpr const char* kNegativeLoss =
    "The loss in column 5, row 5 is negative: it drives the flow, and there may be several"
    " solutions";
const struct {
    std::function<void(NetworkBuilder&)> spoil;
    std::vector<Note> notes;
} kNotes[] = {
    {[](auto&) {}, {}},
    {[](auto& n) { n->Pipes[1].Z2 = 7; },
     {{"The pipes at point 2 give it different heights, 7 m to 8 m", NoteOn::Point, 2}}},
    {[](auto& n) { n->settings.Roughness = 0.006; },
     {{"The roughness is above a twentieth of the diameter of pipe 2", NoteOn::Pipe, 2}}},
    {[](auto& n) { n.SetFlow(2, -1), n->PressureUnknown[3] = true; },
     {{"Pipe 2 has a negative flow given, which was taken as positive", NoteOn::Pipe, 2}}},
    {[](auto& n) { n->settings.BasePressure = -2.5e5F, n.SetPressure(3, 1e5F); },
     {{"The pressure in point 3 would be below a vacuum", NoteOn::Point, 3}}},
    {PumpLittle, {{"The pump in column 5, row 5 works out of its range", NoteOn::Cell, 205}}},
    {[](auto& n) { PumpLittle(n), PumpOf(n).MinFlow = .5F; }, {}},
    {[](auto& n) { PumpLittle(n), PumpOf(n).MinFlow = .5F, PumpOf(n).Param1 = 1; },
     {{kOpensUpwards, NoteOn::Cell, 205}}},
    {[](auto& n) { BlowAir(n, 0.4819F); },
     {{"The gas in pipe 1 reaches 35 % of the speed of sound: above 30 % its inertia, which is left"
       " out, counts",
       NoteOn::Pipe, 1}}},
    {[](auto& n) { BlowAir(n, 0.4F); }, {}},
    {[](auto& n) { n->Pipes[1].LossSum = -1; },
     {{"The fittings of pipe 1 have a negative sum of coefficients: they drive the flow, and there"
       " may be several solutions",
       NoteOn::Pipe, 1}}},
    {Cut(CellKind::Loss, {2, -1e4F}, 3e5F), {{kNegativeLoss, NoteOn::Cell, 205}}},
    {Cut(CellKind::Loss, {-.2F, 0}, 3e5F), {{kNegativeLoss, NoteOn::Cell, 205}}},
    {Cut(CellKind::Loss, {0, 5e4F}, 2e4F),
     {{"The fixed drop in column 5, row 5 holds the flow still: less than it is there to drive the"
       " flow",
       NoteOn::Cell, 205},
      {"The flow in pipe 1, and in 1 more, is laminar (Re below 2300): the friction formula gives"
       " up to 56 % less than the laminar law",
       NoteOn::Pipe, 1, NoteWeight::Remark}}},
    {Cut(CellKind::Pump, {-200, 5e4F}, 0, 1e5F),
     {{"The pump in column 5, row 5 runs backwards", NoteOn::Cell, 205}}},
    {Cut(CellKind::Pump, {0, 50, 1e4F}, 1e5F), {{kOpensUpwards, NoteOn::Cell, 205}}},
    {[](auto& n) { BlowAir(n, -4), n.SetPressure(1, 0), n->PressureUnknown[2] = true; },
     {{"The gas in pipe 1 would fall below a vacuum", NoteOn::Pipe, 1},
      {"Pipe 1 has a negative flow given, which was taken as positive", NoteOn::Pipe, 1}}},
    {FlowSlowly,
     {{"The flow in pipe 1, and in 1 more, is laminar (Re below 2300): the friction formula gives"
       " up to 9 % more than the laminar law",
       NoteOn::Pipe, 1, NoteWeight::Remark}}},
};

TEST(RunNotes, NameTheirPlace) {
    for (const auto& c : kNotes) {
        NetworkBuilder network(3);
        network.AddPipe(1, 2, 100, .13F);
        network.AddPipe(2, 3, 100, .11F);
        network->Pipes[1].Z2 = network->Pipes[2].Z1 = 8;
        network.SetPressure(1, 3e5F);
        network.SetPressure(3, 2e5F);
        c.spoil(network);
        EXPECT_EQ(NetworkRun(network).outcome.notes, c.notes);
    }
}

TEST(RunNotes, SayWhyThereIsNoSingleSolution) {
    const std::string rough =
        "The given values leave no single solution; all numbers are rough, also in parts that have"
        " one";
    NetworkBuilder round(3);  // as many unknowns as equations, but no level
    for (int i = 1; i <= 3; ++i) round.AddPipe(i, i % 3 + 1);
    NetworkBuilder misplaced = CutPipe({9, .1F}, CellKind::Loss, {2}, {9, .1F}, 3e5F);
    misplaced.SetFlow(2, 5);  // one value too many here, one too few in a third pipe
    misplaced.AddPipe(misplaced.AddPoint(20, 2), misplaced.AddPoint(24, 2));
    misplaced.SetPressure(5, 2e5F);
    const std::pair<const NetworkBuilder*, std::vector<std::string>> cases[] = {
        {&round, {"No pressure is given in the part of the network that holds pipe 1", rough}},
        {&misplaced,
         {"Point 6 is an open end: give its pressure or the flow of pipe 3",
          "The flow of pipe 2 is given, though no end of it is open for one: make it or a pressure"
          " unknown",
          rough}}};
    for (const auto& [network, notes] : cases) {
        const NetworkRun run(*network);
        EXPECT_EQ(run.outcome.end, RunEnd::Singular);
        EXPECT_THAT(run.Notes(), testing::IsSupersetOf(notes));
    }
}

TEST(RunNotes, SharesAreToldInPercent) {
    const std::pair<double, std::string> cases[] = {
        {0.03, "3 %"}, {0.0123, "1 %"}, {0.0042, "0.42 %"}, {1e-7, "0.01 %"}};
    for (const auto& [share, text] : cases) EXPECT_EQ(PercentText(share), text);
}

TEST(RunSettings, NegativeFlowsAreTurnedAfterAQuestion) {
    for (const Answer answer : {Answer::Cancel, Answer::Ok}) {
        NetworkBuilder network(4);
        for (int i = 1; i <= 3; ++i) network.AddPipe(i, i + 1);
        network->Pipes[3].FlowRate = -1;
        network->Pipes[3].FlowFromPoint = 4;
        ScriptedBoxes boxes;
        boxes.Expect(kChangeDirections, answer);
        const bool turned = MakeFlowRatesPositive(*network, boxes);
        EXPECT_EQ(turned, answer == Answer::Ok);
        EXPECT_EQ(network->Pipes[3].FlowRate, turned ? 1 : -1);
        EXPECT_EQ(network->Pipes[3].FlowFromPoint, turned ? 3 : 4);
        EXPECT_EQ(network->Pipes[2].FlowFromPoint, 2);
    }
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
