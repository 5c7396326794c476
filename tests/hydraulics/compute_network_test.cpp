// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/compute_network.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>
#include <string>
#include <vector>

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
    return sign * PipeDrop(project, record.Diameter, 0, flow, record.Length, kAtmosphere);
}

/// Pipe 1 from point 1 to a component in a cell of its own, pipe 2 from there to point 4.
struct Line {
    const char* name;
    CellKind kind;
    bool placed;
    float param1, param2, constant;
    float length, diameter;
    float p1, p4;
    std::int16_t height;  ///< of point 1 above the rest
    bool secondStage;

    NetworkBuilder Build() const {
        NetworkBuilder network;
        network.AddPoint(2, 5);
        network.AddPoint(5, 5);
        network.AddPoint(5, 5);
        network.AddPoint(8, 5);
        network->Pipes[network.AddPipe(1, 2, length, diameter)].Z1 = height;
        network.AddPipe(3, 4, length / 2, diameter * 0.8F);
        CellRec& cell = network.AddComponent(2, kind);
        cell.Placed = placed;
        cell.Param1 = param1;
        cell.Param2 = param2;
        cell.PumpConstant = constant;
        network.SetPressure(1, p1);
        network.SetPressure(4, p4);
        return network;
    }

    double Rise(double q) const {
        if (!placed) return 0;
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
    {"fixed drop", kLoss, true, 0, 20000, 0, 100, 0.1F, 3e5F, 2e5F, 0, false},
    {"downhill", kLoss, true, 0.5F, 0, 0, 200, 0.05F, 2e5F, 2e5F, 10, false},
    {"deleted component", kPump, false, -200, 1e5F, 0, 100, 0.1F, 3e5F, 2e5F, 0, false},
    {"pump of two coefficients", kPump, true, -20, 1e5F, 0, 300, 0.1F, 1e5F, 1e5F, 0, false},
    {"pump with its constant", kPump, true, -20, -50, 1e5F, 300, 0.1F, 1e5F, 1e5F, 0, false},
    {"pump steeper than its system", kPump, true, -5000, 0, 3e5F, 10, 0.1F, 1e5F, 1e5F, 0, true},
    {"valve on 2 m of pipe", kLoss, true, 20, 0, 0, 2, 0.1F, 2e5F, 1e5F, 0, true},
};

TEST(ComputeNetwork, WorkingPointOfALine) {
    for (const Line& line : kLines) {
        SCOPED_TRACE(line.name);
        NetworkBuilder network = line.Build();
        const NetworkRun run(network);
        const double head = line.p1 - line.p4 + 1000 * 9.81 * line.height;
        const double expected = Root(
            [&](double q) {
                return head + line.Rise(q) - Drop(*network, 1, q) - Drop(*network, 2, q);
            },
            1e-6, 1000);
        EXPECT_EQ(run.outcome.end, RunEnd::Settled);
        EXPECT_EQ(run.outcome.passes[1] != 0, line.secondStage);
        EXPECT_THAT(run.outcome.notes, IsEmpty());
        for (const int pipe : {1, 2}) EXPECT_NEAR(run.Flow(pipe), expected, 3e-4 * expected);
        EXPECT_EQ(network->Pipes[1].FlowRate, run.work->WorkPipes[1].FlowRate);
        EXPECT_NEAR(run.Pressure(3) - run.Pressure(2), line.Rise(expected), 1e-3 * line.p1);
    }
}

/// Four junctions in a loop: fed at the first, 2 kg/s taken at the second, 4 at the third.
NetworkBuilder OneLoop() {
    NetworkBuilder network;
    for (int i = 1; i <= 7; ++i) network.AddPoint(2 * i, 2);
    network.AddPipe(1, 2, 100, 0.06F);
    network.AddPipe(2, 3, 150, 0.05F);
    network.AddPipe(4, 3, 80, 0.07F);
    network.AddPipe(1, 4, 120, 0.06F);
    network.AddPipe(5, 1, 10, 0.1F);
    network.SetFlow(network.AddPipe(2, 7, 10, 0.05F), 2);
    network.SetFlow(network.AddPipe(3, 6, 10, 0.05F), 4);
    network.SetPressure(5, 5e5F);
    return network;
}

TEST(ComputeNetwork, LoopClosesAsByHand) {
    NetworkBuilder network = OneLoop();
    const NetworkRun run(network);
    const double q = Root(
        [&](double first) {
            return Drop(*network, 4, 6 - first) + Drop(*network, 3, 6 - first) -
                   Drop(*network, 1, first) - Drop(*network, 2, first - 2);
        },
        0, 6);
    ASSERT_EQ(run.outcome.end, RunEnd::Settled);
    EXPECT_NEAR(run.Flow(1), q, 1e-3);
    EXPECT_NEAR(run.Flow(2), q - 2, 1e-3);
    EXPECT_NEAR(run.Flow(3), 6 - q, 1e-3);
    EXPECT_NEAR(run.Flow(5), 6, 1e-5);
    const double end = 5e5 - Drop(*network, 5, 6) - Drop(*network, 1, q) -
                       Drop(*network, 2, q - 2) - Drop(*network, 7, 4);
    EXPECT_NEAR(run.Pressure(6), end, 1e-4 * 5e5);
}

TEST(ComputeNetwork, ParallelPipesShareTheFlow) {
    NetworkBuilder network;
    for (int i = 1; i <= 4; ++i) network.AddPoint(2 * i, 2);
    network.AddPipe(1, 2);
    network.AddPipe(2, 3, 100, 0.05F);
    network.AddPipe(2, 3, 300, 0.08F);
    network.AddPipe(3, 4);
    network.SetPressure(1, 3e5F);
    network.SetPressure(4, 2e5F);
    const NetworkRun run(network);
    const auto share = [&](double q) {
        return Root([&](double s) { return Drop(*network, 3, q - s) - Drop(*network, 2, s); }, 0,
                    q);
    };
    const double q = Root(
        [&](double total) {
            return 1e5 - Drop(*network, 1, total) - Drop(*network, 2, share(total)) -
                   Drop(*network, 4, total);
        },
        0, 100);
    ASSERT_EQ(run.outcome.end, RunEnd::Settled);
    EXPECT_NEAR(run.Flow(1), q, 3e-4 * q);
    EXPECT_NEAR(run.Flow(2), share(q), 3e-4 * q);
    EXPECT_NEAR(run.Flow(3), q - share(q), 3e-4 * q);
}

void MakeAir(Project& project) {
    project.FluidDensity = 1.2929;
    project.FluidViscosity = 1.8e-5;
    project.FluidCompressibility = 1;
    project.FluidTemperature = 20;
    project.EquationType = Equation::Compressible;
}

/// p1^2 - p2^2 = 4 f (L/D) (W/A)^2 Z R T / M with absolute pressures.
TEST(ComputeNetwork, GasPipeMeetsTheIsothermalSolution) {
    NetworkBuilder network;
    network.AddPoint(2, 2);
    network.AddPoint(4, 2);
    network.AddPipe(1, 2, 500, 0.05F);
    network.SetPressure(1, 6e5F);
    network.SetPressure(2, 1e5F);
    MakeAir(*network);
    const NetworkRun run(network);
    const double p1 = 6e5 + 101325;
    const double p2 = 1e5 + 101325;
    const double area = 3.1415 * 0.05 * 0.05 / 4;
    const double gas = 101325 / (1.2929 * 273.15) * 293.15;  // Z R T / M
    const double q = Root(
        [&](double flow) {
            return p1 * p1 - p2 * p2 -
                   4 * FrictionFactor(*network, 0.05, 0, flow) * 1e4 * std::pow(flow / area, 2) *
                       gas;
        },
        1e-3, 10);
    EXPECT_EQ(run.outcome.end, RunEnd::Settled);
    EXPECT_NEAR(run.Flow(1), q, 2e-4 * q);
}

TEST(ComputeNetwork, IdlePipesSettle) {
    for (const bool gas : {false, true}) {
        NetworkBuilder bridge;
        for (int i = 1; i <= 6; ++i) bridge.AddPoint(2 * i, 2);
        for (const auto& [start, end] : {std::pair{1, 2}, {1, 3}, {2, 4}, {3, 4}}) {
            bridge.AddPipe(start, end);
        }
        const int idle = bridge.AddPipe(2, 3);
        bridge.AddPipe(5, 1);
        bridge.AddPipe(4, 6);
        bridge.SetPressure(5, 3e5F);
        bridge.SetPressure(6, 2e5F);
        if (gas) MakeAir(*bridge);
        const NetworkRun run(bridge);
        EXPECT_EQ(run.outcome.end, RunEnd::Settled);
        EXPECT_NEAR(run.Flow(idle), 0, 1e-4 * run.Flow(1));
        EXPECT_THAT(BrokenLaws(*bridge, *run.work), IsEmpty());

        for (const int point : {5, 6}) bridge.SetPressure(point, 3e5F);  // now nothing flows
        const NetworkRun still(bridge);
        EXPECT_EQ(still.outcome.end, RunEnd::Settled);
        for (int i = 1; i <= bridge->numtubo; ++i) EXPECT_EQ(still.Flow(i), 0);
    }
}

TEST(ComputeNetwork, NumbersAndReferencesDoNotMatter) {
    NetworkBuilder plain = LoopedNetwork(4, 4);
    const NetworkRun expected(plain);
    NetworkBuilder mixed = LoopedNetwork(4, 4);
    std::mt19937 random(7);
    std::vector<int> place(plain->numtubo + 1);
    std::iota(place.begin(), place.end(), 0);
    std::shuffle(place.begin() + 1, place.end(), random);
    std::vector<int> sign(place.size(), 1);
    for (int i = 1; i <= plain->numtubo; ++i) {
        PipeRec& pipe = mixed->Pipes[place[i]];
        pipe = LoopedNetwork(4, 4)->Pipes[i];
        mixed->FlowUnknown[place[i]] = plain->FlowUnknown[i];
        if (random() % 2 == 0) std::swap(pipe.StartPoint, pipe.EndPoint);
        if (plain->FlowUnknown[i] && random() % 2 == 0) {
            pipe.FlowFromPoint =
                static_cast<std::int16_t>(pipe.StartPoint + pipe.EndPoint - pipe.FlowFromPoint);
            sign[i] = -1;
        }
    }
    const NetworkRun run(mixed, 99);
    ASSERT_EQ(run.outcome.end, RunEnd::Settled);
    for (int i = 1; i <= plain->numtubo; ++i) {
        EXPECT_NEAR(sign[i] * run.Flow(place[i]), expected.Flow(i), 1e-3) << i;
    }
}

TEST(ComputeNetwork, LossAgainstItsDirectionIsToldAndCured) {
    NetworkBuilder network =
        Line{"", kLoss, true, 0, 20000, 0, 100, 0.1F, 2e5F, 3e5F, 0, false}.Build();
    const NetworkRun first(network);
    const int cell = network->Points[2].Cell;
    EXPECT_THAT(first.outcome.notes,
                ElementsAre("Loss in cell " + std::to_string(cell) +
                            " is crossed against its direction: use Flow rates direction and"
                            " compute again"));
    EXPECT_GT(first.Pressure(2), first.Pressure(3));  // a drop that helps the flow
    RecordedBoxes boxes;
    EXPECT_TRUE(MakeFlowRatesPositive(*network, boxes));
    EXPECT_EQ(network->Pipes[1].FlowFromPoint, 2);
    EXPECT_GT(network->Pipes[1].FlowRate, 0);
    const NetworkRun cured(network);
    EXPECT_THAT(cured.outcome.notes, IsEmpty());
    EXPECT_EQ(cured.outcome.end, RunEnd::Settled);
    EXPECT_NEAR(cured.Pressure(3) - cured.Pressure(2), 20000, 1);
}

TEST(ComputeNetwork, NotesSayWhatIsAmiss) {
    NetworkBuilder backwards =
        Line{"", kPump, true, 0, 1000, 0, 100, 0.1F, 2e5F, 3e5F, 0, false}.Build();
    const std::string cell = std::to_string(backwards->Points[2].Cell);
    EXPECT_THAT(NetworkRun(backwards).outcome.notes,
                ElementsAre("The pump in cell " + cell + " runs backwards"));

    NetworkBuilder negative = OneLoop();
    negative->Pipes[6].FlowRate = -2;
    const NetworkRun positive(negative);
    EXPECT_EQ(positive.Flow(6), 2);
    EXPECT_THAT(positive.outcome.notes,
                ElementsAre("Pipe 6 has a negative flow given, which was taken as positive"));

    NetworkBuilder loose;  // as many unknowns as equations, but no level
    for (int i = 1; i <= 3; ++i) loose.AddPoint(2 * i, 2);
    for (int i = 1; i <= 3; ++i) loose.AddPipe(i, i % 3 + 1);
    const NetworkRun unlevelled(loose);
    EXPECT_EQ(unlevelled.outcome.end, RunEnd::Singular);
    EXPECT_THAT(unlevelled.outcome.notes,
                ElementsAre("No pressure is given in the part of the network that holds pipe 1"));
}

}  // namespace
}  // namespace idrova
