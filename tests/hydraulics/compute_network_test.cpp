// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/compute_network.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <tuple>
#include <vector>

#include "hydraulics/allocations.h"
#include "hydraulics/law_check.h"
#include "hydraulics/run_settings.h"
#include "support/network_run.h"

namespace idrova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Where the falling function `f` crosses 0.
template <typename Function>
double Root(Function f, double low, double high) {
    for (int i = 0; i < 200; ++i) {
        const double middle = (low + high) / 2;
        (f(middle) > 0 ? low : high) = middle;
    }
    return low;
}

/// Drop along a pipe, with the sign of the flow.
double Drop(const Project& project, int pipe, double flow) {
    const PipeRec& record = project.Pipes[pipe];
    const int sign = flow < 0 ? -1 : 1;
    return sign * PipeDrop(project.settings, record.Diameter, 0, flow, record.Length, kAtmosphere);
}

struct Line {
    const char* name = nullptr;
    CellKind kind = CellKind::Pump;
    float param1 = 0, param2 = 0, constant = 0, length = 0, diameter = 0, p1 = 0, p4 = 0;
    bool secondStage = false;
    std::int16_t height = 0;  ///< of point 1 above the rest

    NetworkBuilder Build() const {
        NetworkBuilder network = CutPipe(kind, length, diameter);
        network->Pipes[1].Z1 = height;
        CellRec& cell = network->Cells[network->Points[2].Cell];
        cell.Param1 = param1;
        cell.Param2 = param2;
        cell.PumpConstant = constant;
        network.SetPressure(1, p1);
        network.SetPressure(4, p4);
        return network;
    }

    double Rise(double q) const {
        if (kind == CellKind::Pump && constant != 0) return (param1 * q + param2) * q + constant;
        if (kind == CellKind::Pump) return param1 * q * q + param2;
        if (param2 != 0) return -param2;
        const double area = 3.1415 * diameter * diameter / 4;
        return -param1 * 0.5 * 1000 * std::pow(q / (1000 * area), 2);
    }
};

constexpr CellKind kPump = CellKind::Pump;
constexpr CellKind kLoss = CellKind::Loss;

constexpr Line kLines[] = {
    {"fixed drop before a coefficient", kLoss, 5, 20000, 0, 100, 0.1F, 3e5F, 2e5F},
    {"downhill", kLoss, 0.5F, 0, 0, 200, 0.05F, 2e5F, 2e5F, false, 10},
    {"pump of two coefficients", kPump, -20, 1e5F, 0, 300, 0.1F, 1e5F, 1e5F},
    {"pump with its constant", kPump, -20, -50, 1e5F, 300, 0.1F, 1e5F, 1e5F},
    {"pump steeper than its system", kPump, -5000, 0, 3e5F, 10, 0.1F, 1e5F, 1e5F, true},
    {"valve on 2 m of pipe", kLoss, 20, 0, 0, 2, 0.1F, 2e5F, 1e5F, true},
    {"the same crossed backwards", kLoss, 20, 0, 0, 2, 0.1F, 1e5F, 2e5F, true},
};

TEST(ComputeNetwork, WorkingPointOfALine) {
    for (const Line& line : kLines) {
        SCOPED_TRACE(line.name);
        NetworkBuilder network = line.Build();
        const NetworkRun run(network);
        const int sign = line.p1 < line.p4 ? -1 : 1;
        const double head = std::abs(line.p1 - line.p4) + 1000 * 9.81 * line.height;
        const double expected = Root(
            [&](double q) {
                return head + line.Rise(q) - Drop(*network, 1, q) - Drop(*network, 2, q);
            },
            1e-6, 1000);
        EXPECT_EQ(run.outcome.end, RunEnd::Settled);
        EXPECT_EQ(run.outcome.passes[1] != 0, line.secondStage);
        EXPECT_THAT(run.outcome.notes, IsEmpty());
        for (const int pipe : {1, 2}) EXPECT_NEAR(run.Flow(pipe), sign * expected, 3e-4 * expected);
        EXPECT_EQ(network->Pipes[1].FlowRate, run.work->WorkPipes[1].FlowRate);
        EXPECT_EQ(network->Points[2].Pressure, run.work->WorkPoints[2].Pressure);
        const double rise = run.Pressure(3) - run.Pressure(2);
        EXPECT_NEAR(rise, sign * line.Rise(expected), 1e-3 * line.p1);
    }
}

/// Four junctions: fed at the first, 2 kg/s taken at the second, 4 at the third.
TEST(ComputeNetwork, LoopClosesAsByHand) {
    NetworkBuilder network(7);
    network.AddPipe(1, 2, 100, 0.06F);
    network.AddPipe(2, 3, 150, 0.05F);
    network.AddPipe(4, 3, 80, 0.07F);
    network.AddPipe(1, 4, 120, 0.06F);
    network.AddPipe(5, 1, 10);
    network.SetFlow(network.AddPipe(2, 7, 10, 0.05F), -2);  // taken as positive
    network.SetFlow(network.AddPipe(3, 6, 10, 0.05F), 4);
    network.SetPressure(5, 5e5F);
    const NetworkRun run(network);
    const double q = Root(
        [&](double first) {
            return Drop(*network, 4, 6 - first) + Drop(*network, 3, 6 - first) -
                   Drop(*network, 1, first) - Drop(*network, 2, first - 2);
        },
        0, 6);
    const double flows[] = {q, q - 2, 6 - q, 6 - q, 6, 2, 4};
    for (int i = 1; i <= 7; ++i) EXPECT_NEAR(run.Flow(i), flows[i - 1], 1e-3) << i;
    const double end = 5e5 - Drop(*network, 5, 6) - Drop(*network, 1, q) -
                       Drop(*network, 2, q - 2) - Drop(*network, 7, 4);
    EXPECT_NEAR(run.Pressure(6), end, 1e-4 * 5e5);
    EXPECT_EQ(run.outcome.end, RunEnd::Settled);
    EXPECT_THAT(run.outcome.notes,
                ElementsAre("Pipe 6 has a negative flow given, which was taken as positive"));
}

/// p1^2 - p2^2 = 4 f (L/D) (W/A)^2 Z R T / M with absolute pressures.
TEST(ComputeNetwork, GasPipeMeetsTheIsothermalSolution) {
    NetworkBuilder network(2);
    network.AddPipe(1, 2, 500, 0.05F);
    network.SetPressure(1, 6e5F);
    network.SetPressure(2, 1e5F);
    MakeAir(*network);
    const NetworkRun run(network);
    const double squares = std::pow(6e5 + 101325, 2) - std::pow(1e5 + 101325, 2);
    const double area = 3.1415 * 0.05 * 0.05 / 4;
    const double gas = 0.98 * 101325 / (1.2929 * 273.15) * 293.15;  // Z R T / M
    const double q = Root(
        [&](double flow) {
            const double f = FrictionFactor(network->settings, 0.05, 0, flow);
            return squares - 4 * f * 1e4 * std::pow(flow / area, 2) * gas;
        },
        1e-3, 10);
    EXPECT_EQ(run.outcome.end, RunEnd::Settled);
    EXPECT_NEAR(run.Flow(1), q, 2e-4 * q);
}

TEST(ComputeNetwork, IdlePipesSettle) {
    for (const bool gas : {false, true}) {
        NetworkBuilder bridge(6);
        const int idle = bridge.AddPipe(2, 3);
        for (const auto& [start, end] : {std::pair{1, 2}, {1, 3}, {2, 4}, {3, 4}, {5, 1}, {4, 6}}) {
            bridge.AddPipe(start, end);
        }
        bridge.SetPressure(5, 3e5F);
        bridge.SetPressure(6, 2e5F);
        if (gas) MakeAir(*bridge);
        const NetworkRun run(bridge);
        EXPECT_EQ(run.outcome.end, RunEnd::Settled);
        EXPECT_NEAR(run.Flow(idle), 0, 1e-4 * run.Flow(2));
        EXPECT_THAT(LawCheck(*bridge, *run.work).Faults(), IsEmpty());

        for (const int point : {5, 6}) bridge.SetPressure(point, 3e5F);  // now nothing flows
        const NetworkRun still(bridge);
        EXPECT_EQ(still.outcome.end, RunEnd::Settled);
        for (int i = 1; i <= 7; ++i) EXPECT_EQ(still.Flow(i), 0);
    }
}

/// A closed hydrant behind a valve or a pump, on a branch of a line from 2 to 1 bar.
TEST(ComputeNetwork, ComponentsInClosedBranchesSettleFromAnyStart) {
    for (const auto& [kind, param1, param2] : {std::tuple{kLoss, 10.0F, 0.0F}, {kPump, -9, 5e4F}}) {
        for (std::uint32_t seed = 1; seed <= 20; ++seed) {
            NetworkBuilder network = CutPipe(kind, 20, 0.05F);
            CellRec& cell = network->Cells[network->Points[2].Cell];
            cell.Param1 = param1;
            cell.Param2 = param2;
            network.SetFlow(2, 0);
            for (const int row : {2, 8}) network.AddPipe(1, network.AddPoint(2, row), 50, 0.05F);
            network.SetPressure(5, 2e5F);
            network.SetPressure(6, 1e5F);
            const NetworkRun run(network, seed);
            EXPECT_EQ(run.outcome.end, RunEnd::Settled) << seed;
            EXPECT_NEAR(run.Pressure(4) - run.Pressure(1), param2, 20) << seed;
        }
    }
}

TEST(ComputeNetwork, NumbersAndReferencesDoNotMatter) {
    NetworkBuilder plain = LoopedNetwork(4, 4);
    NetworkBuilder mixed = LoopedNetwork(4, 4);
    const int pipes = plain->numtubo;
    for (int i = 1; i <= pipes; ++i) {  // the other way round, every third counted backwards
        PipeRec& pipe = mixed->Pipes[pipes + 1 - i] = plain->Pipes[i];
        mixed->FlowUnknown[pipes + 1 - i] = plain->FlowUnknown[i];
        if (i % 2 == 0) std::swap(pipe.StartPoint, pipe.EndPoint);
        if (i % 3 == 0 && plain->FlowUnknown[i]) {
            pipe.FlowFromPoint =
                pipe.FlowFromPoint == pipe.StartPoint ? pipe.EndPoint : pipe.StartPoint;
        }
    }
    const NetworkRun expected(plain);
    const NetworkRun run(mixed, 99);
    ASSERT_EQ(run.outcome.end, RunEnd::Settled);
    for (int i = 1; i <= pipes; ++i) {
        const int sign = i % 3 == 0 && plain->FlowUnknown[i] ? -1 : 1;
        EXPECT_NEAR(sign * run.Flow(pipes + 1 - i), expected.Flow(i), 1e-3) << i;
    }
}

TEST(ComputeNetwork, ComponentsCrossedBackwardsAreToldAndCured) {
    for (const CellKind kind : {kLoss, kPump}) {
        NetworkBuilder network = Line{"", kind, 0, 20000, 0, 100, 0.1F, 2e5F, 3e5F}.Build();
        const NetworkRun first(network);
        const char* const note =
            kind == kPump ? "The pump in cell 205 runs backwards"
                          : "Loss in cell 205 is crossed against its direction: use Flow rates"
                            " direction and compute again";
        EXPECT_THAT(first.outcome.notes, ElementsAre(note));
        EXPECT_NEAR(first.Pressure(3) - first.Pressure(2), kind == kPump ? 20000 : -20000, 1);
        RecordedBoxes boxes;
        EXPECT_TRUE(MakeFlowRatesPositive(*network, boxes));
        const NetworkRun cured(network);
        EXPECT_GT(cured.Flow(1), 0);
        EXPECT_NEAR(cured.Pressure(3) - cured.Pressure(2), 20000, 1);
        EXPECT_EQ(cured.outcome.notes.empty(), kind == kLoss);
    }
}

TEST(ComputeNetwork, NothingIsAllocatedFromPassToPass) {
    NetworkBuilder network = LoopedNetwork(4, 4);
    const auto work = std::make_unique<WorkNetwork>();
    CopyNetwork(*network, *work);
    RecordedBoxes boxes;
    std::vector<long> counts;
    counts.reserve(200);
    RunServices services{.boxes = boxes, .seed = 1};
    services.showProgress = [&](const RunProgress&) { counts.push_back(Allocations()); };
    ComputeNetwork(*network, *work, false, services);
    ASSERT_GT(counts.size(), 3U);
    EXPECT_EQ(counts.front(), counts.back());
    EXPECT_GT(counts.front(), 0) << "the counter counts";
}

TEST(ComputeNetwork, MissingLevelIsTold) {
    NetworkBuilder loose(3);  // as many unknowns as equations
    for (int i = 1; i <= 3; ++i) loose.AddPipe(i, i % 3 + 1);
    const NetworkRun run(loose);
    EXPECT_EQ(run.outcome.end, RunEnd::Singular);
    EXPECT_THAT(run.outcome.notes,
                ElementsAre("No pressure is given in the part of the network that holds pipe 1"));
}

}  // namespace
}  // namespace idrova
