// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/compute_network.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <tuple>
#include <vector>

#include "hydraulics/first_stage.h"
#include "hydraulics/law_check.h"
#include "hydraulics/run_checks.h"
#include "support/network_run.h"

namespace idrova {
namespace {

using testing::IsEmpty;

constexpr CellKind kPump = CellKind::Pump;
constexpr CellKind kLoss = CellKind::Loss;

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
            NetworkBuilder network = CutPipe({20, 0.05F}, kind, {param1, param2}, {10, 0.04F}, 0);
            network->PressureUnknown[1] = network->PressureUnknown[4] = true;
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

/// 10 m and 10 m of 53.8 mm between 2 bar and 1, a component between them.
NetworkBuilder TwoTens(CellKind kind, std::array<float, 3> numbers, float p1 = 2e5F,
                       float p4 = 1e5F) {
    return CutPipe({10, 0.0538F}, kind, numbers, {10, 0.0538F}, p1, p4);
}

/// Within a hundredth, so that the closing stage has a step or two to go.
TEST(FirstStage, FindsTheNeighbourhood) {
    std::vector<NetworkBuilder> networks;
    networks.push_back(LoopedNetwork(3, 2));
    networks.push_back(TwoTens(kLoss, {3}));
    networks.push_back(TwoTens(kLoss, {3, 20000}));
    networks.push_back(TwoTens(kPump, {-200, 50000}));
    networks.push_back(TwoTens(kPump, {-200, -50, 50000}));
    networks.push_back(TwoTens(kLoss, {}, 6e5F, 5e5F));
    MakeAir(*networks.back());
    networks.push_back(TwoTens(kLoss, {3}));
    networks.back().SetFlow(2, 5);
    networks.back()->PressureUnknown[1] = true;
    for (std::size_t i = 0; i < networks.size(); ++i) {
        SCOPED_TRACE(i);
        const NetworkRun run(networks[i]);
        const NetworkPlan plan = PlanNetwork(*run.work);
        FlowGuesses guesses{};
        guesses.fill(3);
        const auto work = std::make_unique<WorkNetwork>();
        CopyNetwork(*networks[i], *work);
        double residual = 1;
        const PassReport report = [&](int, double summed) { return residual = summed, true; };
        const FirstStage first = RunFirstStage(networks[i]->settings, plan, *work, guesses, report);
        EXPECT_LT(residual, 0.01);
        double largest = 0;
        for (const auto& [number, pipe] : DrawnPipes(*run.work)) {
            largest = std::max(largest, double{std::abs(pipe.FlowRate)});
        }
        for (const auto& [number, pipe] : DrawnPipes(*run.work)) {
            EXPECT_NEAR(first.solution.Flow(plan, number), pipe.FlowRate, 0.01 * largest);
        }
        for (const auto& [number, point] : DrawnPoints(*run.work)) {
            EXPECT_NEAR(first.solution.Pressure(plan, number), point.Pressure, 1000);
        }
    }
}

/// A pipe whose flow and both pressures are given, in both directions: with losses of its own,
/// where the drop is 13042.74 Pa, and between equal pressures.
TEST(RunChecks, CoherentIsWhatAgreesToATenThousandth) {
    struct Case {
        float length, lossSum, pressure;
        bool coherent;
    };
    std::vector<Case> cases = {{0.0880F, 0, 0, true}, {0.0885F, 0, 0, false}};  // about 10.1325 Pa
    for (const double off : {-1.1e-4, -0.9e-4, 0.9e-4, 1.1e-4}) {
        const double pressure = 13042.74 * (1 + off);
        cases.push_back({100, 3, static_cast<float>(pressure), std::abs(off) < 1e-4});
    }
    for (const Case& c : cases) {
        for (const int from : {1, 2}) {
            NetworkBuilder network(2);
            PipeRec& pipe = network->Pipes[network.AddPipe(1, 2, c.length)];
            pipe.LossSum = c.lossSum;
            pipe.FlowFromPoint = static_cast<std::int16_t>(from);
            network.SetFlow(1, 8);
            network.SetPressure(from, c.pressure);
            network.SetPressure(3 - from, 0);
            const auto work = std::make_unique<WorkNetwork>();
            CopyNetwork(*network, *work);
            EXPECT_EQ(CheckCoherence(network->settings, *work) == std::nullopt, c.coherent)
                << c.length << " m, " << c.pressure << " Pa";
        }
    }
}

TEST(ComputeNetwork, LosesInThePipesOwnFittingsWhatItLosesInTheSameOnesBesideIt) {
    for (const bool gas : {false, true}) {
        const auto flow = [gas](float beside, float own) {
            NetworkBuilder network =
                CutPipe({100, 0.1F}, CellKind::Loss, {beside}, {50, 0.08F}, gas ? 1e4F : 1e5F);
            network->Pipes[1].LossSum = own;
            if (gas) MakeAir(*network);
            return NetworkRun(network).work->WorkPipes[1].FlowRate;
        };
        EXPECT_GT(flow(1, 0), 1.01F * flow(10, 0));
        // The gas of the pipe has the mean density of its ends, that of the component its own.
        EXPECT_NEAR(flow(1, 9) / flow(10, 0), 1, gas ? 5e-3 : 1e-6);
    }
}

/// In the first stage, at its end, and in the closing stage.
TEST(ComputeNetwork, StopsBetweenPasses) {
    const NetworkBuilder network = LoopedNetwork(3, 2);
    const NetworkRun whole(network);
    for (const int last : {1, 3, whole.outcome.passes[0], whole.outcome.passes[0] + 1}) {
        const auto work = std::make_unique<WorkNetwork>();
        CopyNetwork(*network, *work);
        int calls = 0;
        const auto progress = [&](const RunProgress& now) {
            EXPECT_EQ(now.passes, std::min(2.0 * ++calls, 100.0));
            EXPECT_TRUE(calls > 1 || now.closeness < 1) << "percent";
            return calls < last;
        };
        const Outcome outcome =
            ComputeNetwork(network->settings, *work, {.seed = 1, .progress = progress});
        EXPECT_EQ(outcome.end, RunEnd::Stopped);
        EXPECT_EQ(calls, last);
        EXPECT_EQ(work->WorkPipes[1], network->Pipes[1]);
    }
}

}  // namespace
}  // namespace idrova
