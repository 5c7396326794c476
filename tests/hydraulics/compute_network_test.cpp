// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/compute_network.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <tuple>
#include <vector>

#include "hydraulics/law_check.h"
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

/// Drop along a round pipe in Pa, with the sign of the flow; Colebrook's equation by repetition.
double DropOf(const Settings& fluid, double length, double diameter, double flow) {
    const double area = 3.1415 / 4 * diameter * diameter;
    const double perReynolds = fluid.FluidViscosity * area / diameter;
    const double q = std::max(std::abs(flow), 50 * perReynolds);
    const double re = q / perReynolds;
    const double rough = fluid.Roughness / diameter;
    double x = -3.8 * std::log10(10 / re + 0.2 * rough);
    for (int pass = 0; re > 5000 && pass < 60; ++pass) {
        x = 3.48 - 4 * std::log10(2 * rough + 9.35 / re * x);
    }
    const double drop = 2 * length / diameter * q * q / (area * area * x * x * fluid.FluidDensity);
    return flow / q * drop * (std::abs(flow) < q ? 1 : std::abs(flow) / q);
}

double Drop(const Project& project, int pipe, double flow) {
    const PipeRec& record = project.Pipes[pipe];
    return DropOf(project.settings, record.Length, record.Diameter, flow);
}

struct Line {
    const char* name = nullptr;
    CellKind kind = CellKind::Pump;
    float param1 = 0, param2 = 0, constant = 0, length = 0, diameter = 0, p1 = 0, p4 = 0;
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
    {"downhill", kLoss, 0.5F, 0, 0, 200, 0.05F, 2e5F, 2e5F, 10},
    {"pump of two coefficients", kPump, -20, 1e5F, 0, 300, 0.1F, 1e5F, 1e5F},
    {"pump with its constant", kPump, -20, -50, 1e5F, 300, 0.1F, 1e5F, 1e5F},
    {"pump steeper than its system", kPump, -5000, 0, 3e5F, 10, 0.1F, 1e5F, 1e5F},
    {"valve on 2 m of pipe", kLoss, 20, 0, 0, 2, 0.1F, 2e5F, 1e5F},
    {"the same crossed backwards", kLoss, 20, 0, 0, 2, 0.1F, 1e5F, 2e5F},
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
        EXPECT_THAT(run.Notes(), IsEmpty());
        for (const int pipe : {1, 2}) EXPECT_NEAR(run.Flow(pipe), sign * expected, 1e-6 * expected);
        EXPECT_EQ(run.work->WorkComponents[0].record.Result, run.work->WorkPipes[1].FlowRate);
        const double rise = run.Pressure(3) - run.Pressure(2);
        EXPECT_NEAR(rise, sign * line.Rise(expected), 0.1);
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
    for (int i = 1; i <= 7; ++i) EXPECT_NEAR(run.Flow(i), flows[i - 1], 1e-6) << i;
    const double end = 5e5 - Drop(*network, 5, 6) - Drop(*network, 1, q) -
                       Drop(*network, 2, q - 2) - Drop(*network, 7, 4);
    EXPECT_NEAR(run.Pressure(6), end, 5);
    EXPECT_EQ(run.outcome.end, RunEnd::Settled);
    EXPECT_THAT(run.Notes(),
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
    const Settings& air = network->settings;
    const double gas = 0.98 * 101325 / (1.2929 * 273.15) * 293.15;  // Z R T / M
    const double q = Root(
        [&](double flow) {
            return squares - 2 * gas * air.FluidDensity * DropOf(air, 500, 0.05F, flow);
        },
        1e-3, 10);
    EXPECT_EQ(run.outcome.end, RunEnd::Settled);
    EXPECT_NEAR(run.Flow(1), q, 1e-6 * q);
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

/// 10 m and 10 m of 53.8 mm between 2 bar and 1, a component between them.
NetworkBuilder TwoTens(CellKind kind, float param1, float param2, bool reversed = false,
                       float p1 = 2e5F, float p4 = 1e5F) {
    NetworkBuilder network = CutPipe(kind, 10, 0.0538F);
    network->Pipes[2].Length = 10;
    network->Pipes[2].Diameter = 0.0538F;
    CellRec& placed = network->Cells[network->Points[2].Cell];
    placed.Param1 = param1;
    placed.Param2 = param2;
    for (const int pipe : {1, 2}) {
        if (reversed) network->Pipes[pipe].FlowFromPoint = network->Pipes[pipe].EndPoint;
    }
    network.SetPressure(1, p1);
    network.SetPressure(4, p4);
    return network;
}

TEST(ComputeNetwork, LossesOpposeTheFlowHoweverTheyAreDrawn) {
    const double area = 3.1415 / 4 * 0.0538 * 0.0538;
    for (const float k : {0.5F, 3.0F, 10.0F}) {
        for (const bool reversed : {false, true}) {
            NetworkBuilder network = TwoTens(kLoss, k, 0, reversed);
            const NetworkRun run(network);
            const double q = Root(
                [&](double flow) {
                    return 1e5 - 2 * Drop(*network, 1, flow) -
                           k * flow * flow / (2000 * area * area);
                },
                0, 100);
            EXPECT_NEAR(run.Flow(1), reversed ? -q : q, 1e-6 * q) << k;
            EXPECT_TRUE(k != 3 || std::abs(q - 9.3) < 0.05);
            EXPECT_EQ(run.outcome.end, RunEnd::Settled);
            EXPECT_THAT(run.Notes(), IsEmpty());
        }
    }
}

TEST(ComputeNetwork, AFixedDropHoldsTheFlowWhereLessDrivesIt) {
    NetworkBuilder network = TwoTens(kLoss, 0, 50000, false, 1.2e5F);
    const NetworkRun run(network);
    const double area = 3.1415 / 4 * 0.0538 * 0.0538;
    EXPECT_EQ(run.outcome.end, RunEnd::Settled);
    EXPECT_GT(run.Flow(1), 0);
    EXPECT_LT(run.Flow(1), 0.01 * 50 * 1e-3 * area / 0.0538);
    EXPECT_THAT(run.Notes(), ElementsAre(testing::HasSubstr("205 holds the flow still")));
}

TEST(ComputeNetwork, PumpPushedBackwardsHasItsHighestRise) {
    NetworkBuilder network = TwoTens(kPump, -200, 50000, false, 1e5F, 2e5F);
    const NetworkRun run(network);
    const double q = Root([&](double flow) { return 5e4 - 2 * Drop(*network, 1, flow); }, 0, 100);
    EXPECT_EQ(run.outcome.end, RunEnd::Settled);
    EXPECT_NEAR(run.Flow(1), -q, 1e-6 * q);
    EXPECT_NEAR(run.Pressure(3) - run.Pressure(2), 50000, 0.1);
    EXPECT_THAT(run.Notes(), ElementsAre("The pump in cell 205 runs backwards"));
}

/// Oil of 0.2 Pa s: three pipes in series with two of them side by side, and a loop.
TEST(ComputeNetwork, OilIsComputedAsByHand) {
    NetworkBuilder oil(4);
    const int first = oil.AddPipe(1, 2, 20, 0.05F);
    const int wide = oil.AddPipe(2, 3, 30, 0.06F);
    const int narrow = oil.AddPipe(2, 3, 30, 0.04F);
    const int last = oil.AddPipe(3, 4, 40, 0.08F);
    oil->settings.FluidViscosity = 0.2;
    oil.SetPressure(1, 3e5F);
    oil.SetPressure(4, 1e5F);
    const NetworkRun run(oil);
    const auto across = [&](double drop, int pipe) {
        return Root([&](double flow) { return drop - Drop(*oil, pipe, flow); }, 0, 100);
    };
    const double between = Root(
        [&](double drop) {
            const double flow = across(drop, wide) + across(drop, narrow);
            return 2e5 - drop - Drop(*oil, first, flow) - Drop(*oil, last, flow);
        },
        0, 2e5);
    EXPECT_EQ(run.outcome.end, RunEnd::Settled);
    for (const int pipe : {wide, narrow}) {
        const double flow = across(between, pipe);
        EXPECT_NEAR(run.Flow(pipe), flow, 1e-6 * flow);
    }
    EXPECT_NEAR(run.Pressure(2) - run.Pressure(3), between, 0.1);
}

/// The two formulas differ at Re 5000: a drop between their values is met on the line across.
TEST(ComputeNetwork, ADropInTheJumpOfTheFormulasIsMet) {
    NetworkBuilder network(2);
    network.AddPipe(1, 2, 100, 0.05F);
    const double area = 3.1415 / 4 * 0.05F * 0.05F;
    const double at5000 = 5000 * 1e-3 * area / 0.05F;
    const double below = Drop(*network, 1, at5000 * 0.99);
    const double above = Drop(*network, 1, at5000 * 1.01);
    network.SetPressure(1, static_cast<float>((below + above) / 2));
    network.SetPressure(2, 0);
    const NetworkRun run(network);
    EXPECT_EQ(run.outcome.end, RunEnd::Settled);
    EXPECT_NEAR(run.Flow(1), at5000, 1e-6 * at5000);
}

/// Air at 7 bar through a valve that takes nearly all there is to take.
TEST(ComputeNetwork, GasLosesInAValveByTheDensityThatItHas) {
    NetworkBuilder air = TwoTens(kLoss, 2000, 0, false, 6.1e5F, 6e5F);
    for (const int pipe : {1, 2}) air->Pipes[pipe].Length = 0.001F;
    MakeAir(*air);
    const NetworkRun run(air);
    const double area = 3.1415 / 4 * 0.0538F * 0.0538F;
    const double density = 1.2929 * 711325 / 101325 * 273.15 / 293.15 / 0.98;
    const double q = area * std::sqrt(2 * density * 1e4 / 2000);
    EXPECT_EQ(run.outcome.end, RunEnd::Settled);
    EXPECT_NEAR(run.Flow(1), q, 1e-4 * q);
}

/// Between two pools of one level, at heights that agree with it or not.
TEST(ComputeNetwork, LevelHeadsStandStillAndOthersDoNot) {
    for (const float excess : {0.0F, 1.0F}) {
        NetworkBuilder network(3);
        for (const int start : {1, 2}) {
            PipeRec& pipe = network->Pipes[network.AddPipe(start, start + 1, 100, 0.1F)];
            pipe.Z1 = static_cast<std::int16_t>(20 - 10 * start);
            pipe.Z2 = static_cast<std::int16_t>(10 - 10 * start);
        }
        network.SetPressure(1, 1e5F);
        network.SetPressure(3, 1e5F + 2 * 98100 - excess);
        const NetworkRun run(network);
        EXPECT_EQ(run.outcome.end, RunEnd::Settled);
        const double q =
            excess == 0
                ? 0
                : Root([&](double flow) { return excess - 2 * Drop(*network, 1, flow); }, 0, 10);
        EXPECT_NEAR(run.Flow(1), q, 1e-3 * q);
        EXPECT_EQ(run.Flow(1) == 0, excess == 0);
    }
}

TEST(ComputeNetwork, MissingLevelIsTold) {
    NetworkBuilder loose(3);  // as many unknowns as equations
    for (int i = 1; i <= 3; ++i) loose.AddPipe(i, i % 3 + 1);
    const NetworkRun run(loose);
    EXPECT_EQ(run.outcome.end, RunEnd::Singular);
    EXPECT_THAT(run.Notes(),
                ElementsAre("No pressure is given in the part of the network that holds pipe 1"));
}

}  // namespace
}  // namespace idrova
