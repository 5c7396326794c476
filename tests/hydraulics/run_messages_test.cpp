// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <vector>

#include "hydraulics/allocations.h"
#include "hydraulics/compute_network.h"
#include "hydraulics/messages.h"
#include "hydraulics/run_settings.h"
#include "support/networks.h"
#include "support/scripted_boxes.h"

namespace idrova {
namespace {

/// One pipe between points at 3 and 2 bar.
NetworkBuilder OnePipe() {
    NetworkBuilder network;
    network.AddPoint(2, 2);
    network.AddPoint(4, 2);
    network.AddPipe(1, 2);
    network.SetPressure(1, 3e5F);
    network.SetPressure(2, 2e5F);
    return network;
}

/// A pipe from a point at 3 bar, cut between its points 2 and 3.
NetworkBuilder CutPipe() {
    NetworkBuilder network;
    for (const int column : {2, 5, 5, 8}) network.AddPoint(column, 5);
    network.AddPipe(1, 2);
    network.AddPipe(3, 4);
    network.SetPressure(1, 3e5F);
    return network;
}

struct Refusal {
    const char* name;
    std::function<void(NetworkBuilder&)> spoil;
    MessageBox box;
    RunEnd end = RunEnd::Refused;
};

void AddSecondPipe(NetworkBuilder& network) {
    network.AddPoint(6, 2);
    network.AddPipe(2, 3);
}

/// The counts balance, because the second pipe has too little.
void OverdetermineFirstPipe(NetworkBuilder& network) {
    network.AddPoint(6, 2);
    network.AddPoint(8, 2);
    network.SetPressure(3, 1e5F);
    network.AddPipe(3, 4);
    network.SetFlow(1, 1);
}

const std::vector<Refusal> kRefusals = {
    {"no fluid", [](NetworkBuilder& n) { n->FluidDensity = 0; }, {"Select a fluid", "Fluid"}},
    {"two pipes without length, the first without diameter too",
     [](NetworkBuilder& n) {
         AddSecondPipe(n);
         n->Pipes[1].Length = n->Pipes[2].Length = n->Pipes[1].Diameter = 0;
     },
     {"Pipe  1 with zero lenght", "Check"}},
    {"no diameter",
     [](NetworkBuilder& n) { n->Pipes[1].Diameter = 0; },
     {"Pipe  1 with zero diameter", "Check"}},
    {"rectangle without side b",
     [](NetworkBuilder& n) { n->SectionType = Section::Rectangular; },
     {"Pipe  1 with zero diameter", "Check"}},
    {"a pressure too few",
     [](NetworkBuilder& n) { n->PressureUnknown[2] = true; },
     {" 3 Unknowns >  1 Equations + 1 Known terms\rSet  1 flow rates and/or pressures",
      "Unsolving system"}},
    {"a flow too many",
     [](NetworkBuilder& n) { n.SetFlow(1, 1); },
     {" 3 Unknowns <  1 Equations + 3 Known terms\rDelete  1 known terms", "Indefinite system"}},
    {"too many unknowns",
     [](NetworkBuilder& n) { n = LoopedNetwork(8, 12); },
     {"Too many unknowns: 202 (max 200)", "Unsolving system"}},
    {"a flow that does not fit its pressures",
     OverdetermineFirstPipe,
     {"Pipes  1 with not coherent data", "Data oherence check"}},
    {"a flow between level pressures",
     [](NetworkBuilder& n) {
         OverdetermineFirstPipe(n);
         n.SetPressure(2, 3e5F);
     },
     {"Pipes  1 with not coherent data", "Data oherence check"}},
    {"a pump that lifts the more the more it lifts",
     [](NetworkBuilder& n) {
         n = CutPipe();
         n.AddComponent(2, CellKind::Pump).Param1 = 1e6F;
         n.SetPressure(4, 2e5F);
     },
     {"The computation does not settle: no results", "Computation"},
     RunEnd::NotFinite},
};

TEST(RunMessages, RefusalsChangeNothing) {
    for (const Refusal& c : kRefusals) {
        SCOPED_TRACE(c.name);
        NetworkBuilder network = OnePipe();
        c.spoil(network);
        const auto before = std::make_unique<Project>(*network);
        auto work = std::make_unique<WorkNetwork>();
        CopyNetwork(*network, *work);
        const auto copied = std::make_unique<WorkNetwork>(*work);
        ScriptedBoxes boxes;
        boxes.Expect(c.box);
        int reports = 0;
        const RunServices services{.boxes = boxes, .writeReport = [&] { ++reports; }, .seed = 1};
        EXPECT_EQ(ComputeNetwork(*network, *work, false, services).end, c.end);
        EXPECT_EQ(reports, 0);
        EXPECT_EQ(*network, *before);
        EXPECT_EQ(work->WorkPipes, copied->WorkPipes);
        EXPECT_EQ(work->WorkPoints, copied->WorkPoints);
    }
}

TEST(RunMessages, EmptyNetworkEndsSilently) {
    NetworkBuilder empty;
    auto work = std::make_unique<WorkNetwork>();
    ScriptedBoxes boxes;
    const RunServices services{
        .boxes = boxes, .writeReport = [] { ADD_FAILURE() << "reported"; }, .seed = 1};
    EXPECT_EQ(ComputeNetwork(*empty, *work, false, services).end, RunEnd::Empty);
}

TEST(RunMessages, NegativePressuresOfferABasePressure) {
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        NetworkBuilder network = OnePipe();
        network.SetPressure(2, -20000);
        auto work = std::make_unique<WorkNetwork>();
        CopyNetwork(*network, *work);
        ScriptedBoxes boxes;
        boxes.Expect({"Some pressures are negative, probably due to a close circuit\rDo you want to"
                      " automatically define a new value for the base pressure ?\rActual value = "
                      " 0 bar",
                      "Pressure check", BoxIcon::Information, BoxButtons::YesNo},
                     answer);
        const RunServices services{.boxes = boxes, .seed = 1};
        EXPECT_EQ(ComputeNetwork(*network, *work, false, services).end, RunEnd::Settled);
        EXPECT_EQ(network->BasePressure, answer == Answer::Yes ? 20000 : 0);
    }
}

TEST(RunMessages, PumpsOutOfRangeAreListedInDrawnNetworksOnly) {
    for (const float minimum : {1.0F, 2.0F}) {
        for (const bool table : {false, true}) {
            NetworkBuilder network = CutPipe();
            network.SetFlow(1, 1);
            CellRec& pump = network.AddComponent(2, CellKind::Pump);
            pump.Param2 = 1e5F;
            pump.MinFlow = minimum;
            pump.MaxFlow = 3;
            if (table) {
                network->Mode = WorkMode::Table;
                for (const int point : {3, 4}) network.SetPressure(point, 3e5F);
            }
            auto work = std::make_unique<WorkNetwork>();
            CopyNetwork(*network, *work);
            ScriptedBoxes boxes;
            if (minimum > 1 && !table) {
                boxes.Expect({"The pumps  205 , work with a flow rate out range",
                              "Working point check", BoxIcon::Information});
            }
            const RunServices services{.boxes = boxes, .seed = 1};
            EXPECT_EQ(ComputeNetwork(*network, *work, false, services).end, RunEnd::Settled);
            EXPECT_EQ(pump.Result, table ? 0 : 1);
        }
    }
}

TEST(RunMessages, SinglePipeWritesTheWorkingCopyOnly) {
    NetworkBuilder network = OnePipe();
    network.AddComponent(1, CellKind::Pump);  // belongs to the drawing
    network->BasePressure = -1e6F;
    const auto before = std::make_unique<Project>(*network);
    auto work = std::make_unique<WorkNetwork>();
    CopyNetwork(*network, *work);
    ScriptedBoxes boxes;
    const RunServices services{.boxes = boxes, .seed = 1};
    EXPECT_EQ(ComputeNetwork(*network, *work, true, services).end, RunEnd::Settled);
    EXPECT_GT(work->WorkPipes[1].FlowRate, 1);
    EXPECT_EQ(work->WorkPoints[1].Pressure, 3e5F);
    EXPECT_EQ(*network, *before);
}

TEST(RunMessages, NothingIsAllocatedFromPassToPass) {
    NetworkBuilder network = LoopedNetwork(4, 4);
    auto work = std::make_unique<WorkNetwork>();
    CopyNetwork(*network, *work);
    RecordedBoxes boxes;
    std::vector<long> counts;
    counts.reserve(200);
    RunServices services{.boxes = boxes, .seed = 1};
    services.showProgress = [&](const RunProgress&) { counts.push_back(Allocations()); };
    const Outcome outcome = ComputeNetwork(*network, *work, false, services);
    ASSERT_EQ(counts.size(), outcome.passes[0]);
    ASSERT_GT(counts.size(), 3U);
    EXPECT_EQ(counts.front(), counts.back());
    EXPECT_GT(counts.front(), 0);  // the counter counts
}

TEST(RunSettings, EquationAndCalculationData) {
    Settings settings;
    ScriptedBoxes boxes;
    boxes.Expect({"The selected fluid is uncompressible", "Compressibilitynot defined"});
    EXPECT_FALSE(ChooseCompressible(settings, boxes));
    EXPECT_EQ(settings.EquationType, Equation::Incompressible);
    settings.FluidCompressibility = 1;
    EXPECT_TRUE(ChooseCompressible(settings, boxes));
    EXPECT_EQ(settings.EquationType, Equation::Compressible);
    SetCalculationData(settings, {"2.5", "20 C"});
    EXPECT_EQ(settings.BasePressure, 2.5F * 101325);
    EXPECT_EQ(ShowCalculationData(settings).basePressure, "2.5");
    EXPECT_EQ(ShowCalculationData(settings).temperature, "20");
}

}  // namespace
}  // namespace idrova
