// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/network_system.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "support/assembled_network.h"

namespace idrova {
namespace {

constexpr float kP1 = 300000;
constexpr float kP4 = 100000;

/// Pipe 1 feeds point 2, from where pipe 2 takes a given flow; pipe 3, counted towards point 2,
/// climbs from 3 m to 5 m.
NetworkBuilder Branches() {
    NetworkBuilder network;
    for (int i = 1; i <= 4; ++i) network.AddPoint(2 * i, 2);
    network.AddPipe(1, 2);
    network.SetFlow(network.AddPipe(2, 3), -2);
    PipeRec& climbing = network->Pipes[network.AddPipe(2, 4)];
    climbing.Z1 = 3;
    climbing.Z2 = 5;
    climbing.FlowFromPoint = 4;
    network.SetPressure(1, kP1);
    network.SetPressure(4, kP4);
    return network;
}

/// A component at (5, 5) between a left and a right piece, or between an upper and a lower one;
/// points 2 (a) and 3 (b). With `swapped`, a belongs to the right or lower piece.
NetworkBuilder Cut(bool vertical, bool swapped, CellKind kind, float direction) {
    NetworkBuilder network;
    network.AddPoint(vertical ? 5 : 2, vertical ? 2 : 5);
    network.AddPoint(5, 5);
    network.AddPoint(5, 5);
    network.AddPoint(vertical ? 5 : 8, vertical ? 8 : 5);
    network.AddPipe(1, swapped ? 3 : 2);
    network.AddPipe(swapped ? 2 : 3, 4);
    network.AddComponent(2, kind).Direction = direction;
    network.SetPressure(1, kP1);
    network.SetPressure(4, kP4);
    return network;
}

std::vector<double> Row(LinearSystem& system, int row) {
    std::vector<double> terms;
    for (int unknown = 1; unknown <= system.order; ++unknown) {
        terms.push_back(system.At(row, unknown));
    }
    terms.push_back(system.rightSide[row - 1]);
    return terms;
}

TEST(NetworkSystem, RowsOfBranches) {
    AssembledNetwork network(Branches());
    network.state.resistance = {0, 10, 0, 30};
    double flow = 2;
    const double drop = PipeDrop(*network.network, 0.1F, 0, flow, 100, kAtmosphere);
    LinearSystem system = network.Assemble();
    ASSERT_EQ(system.order, 7);
    const double climb = 1000 * 9.81 * 2;
    const std::vector<double> expected[] = {
        // flows 1..3, pressures 1..4, right side
        {0, 0, 0, 0, 1, -1, 0, drop},         // law of pipe 2
        {-10, 0, 0, 0, -1, 0, 0, -kP1},       // law of pipe 1
        {0, 0, 30, 0, 1, 0, 0, kP4 + climb},  // law of pipe 3
        {0, 1, 0, 0, 0, 0, 0, 2},             // flow of pipe 2, its sign dropped
        {0, 0, 0, 1, 0, 0, 0, kP1},           // pressures
        {0, 0, 0, 0, 0, 0, 1, kP4},           //
        {1, -1, 1, 0, 0, 0, 0, 0},            // continuity at point 2
    };
    for (int row = 1; row <= 7; ++row) EXPECT_EQ(Row(system, row), expected[row - 1]) << row;
}

TEST(NetworkSystem, RowsOfOnePipeBetweenGivenPressures) {
    NetworkBuilder one;
    one.AddPoint(2, 2);
    one.AddPoint(4, 2);
    PipeRec& pipe = one->Pipes[one.AddPipe(1, 2)];
    pipe.FlowFromPoint = 2;
    pipe.Z1 = 4;
    one.SetPressure(1, kP1);
    one.SetPressure(2, kP4);
    AssembledNetwork unknown(std::move(one));
    unknown.state.resistance[1] = 10;
    LinearSystem system = unknown.Assemble();
    EXPECT_EQ(Row(system, 1), (std::vector<double>{10, 0, 0, -(kP1 - kP4) - 1000 * 9.81 * 4}));

    unknown.work->WorkFlowUnknown[1] = false;  // one too many: no coefficient at all
    unknown.plan = PlanNetwork(*unknown.network, *unknown.work, Components::Counted);
    LinearSystem overdetermined = unknown.Assemble();
    EXPECT_EQ(Row(overdetermined, 1), (std::vector<double>{0, 0, 0, 0, -1000 * 9.81 * 4}));
}

TEST(NetworkSystem, RowsOfAComponent) {
    NetworkBuilder cut = Cut(false, false, CellKind::Loss, 0);
    cut->Cells[cut->Points[2].Cell].Param2 = 700;
    cut->Pipes[2].FlowFromPoint = 4;
    AssembledNetwork network(std::move(cut));
    LinearSystem system = network.Assemble();
    ASSERT_EQ(system.order, 6);
    EXPECT_EQ(Row(system, 5), (std::vector<double>{0, 0, 0, 1, -1, 0, 700}));
    EXPECT_EQ(Row(system, 6), (std::vector<double>{-1, -1, 0, 0, 0, 0, 0}));

    CellRec& cell = network.network->Cells[network.plan.components[0].cell];
    cell.Param1 = 3;
    cell.Param2 = 0;
    const double q = static_cast<float>(network.state.guess[1]);
    const double slope = 3.0F * std::abs(q) / (1000 * 0.00785375 * 0.00785375);
    LinearSystem sloped = network.Assemble(ComponentRows::Sloped);
    EXPECT_NEAR(sloped.At(5, 1), -slope, 1e-6 * slope);
    EXPECT_NEAR(sloped.rightSide[4], -slope * q / 2, 1e-6 * std::abs(slope * q));
}

struct PlanCase {
    CellKind kind;
    float direction;
    bool vertical, swapped;
    bool referenceRunsToComponent;  ///< of pipe A
    int high;                       ///< point 2 (a), 3 (b) or 0
    int throughSign;
};

constexpr PlanCase kPlans[] = {
    {CellKind::Pump, 1, false, false, true, 3, 1},  {CellKind::Pump, 1, false, false, false, 3, -1},
    {CellKind::Pump, 1, false, true, true, 2, -1},  {CellKind::Pump, 3, false, false, true, 2, -1},
    {CellKind::Pump, 3, false, false, false, 2, 1}, {CellKind::Pump, 2, true, false, true, 3, 1},
    {CellKind::Pump, 4, true, false, true, 2, -1},  {CellKind::Pump, 4, true, true, false, 3, -1},
    {CellKind::Pump, 2, false, false, true, 0, 1},  {CellKind::Pump, 0, false, false, true, 0, 1},
    {CellKind::Loss, 0, false, false, true, 2, 1},  {CellKind::Loss, 0, false, false, false, 3, 1},
    {CellKind::Loss, 0, true, true, true, 2, 1},    {CellKind::Loss, 0, true, true, false, 3, 1},
};

TEST(NetworkPlan, HighPressureEndAndDirectionOfComponents) {
    for (const PlanCase& c : kPlans) {
        NetworkBuilder network = Cut(c.vertical, c.swapped, c.kind, c.direction);
        const int pipeA = c.swapped ? 2 : 1;
        PipeRec& pipe = network->Pipes[pipeA];
        const bool startsAtA = pipe.StartPoint == 2;
        pipe.FlowFromPoint =
            startsAtA == c.referenceRunsToComponent ? pipe.EndPoint : pipe.StartPoint;
        const AssembledNetwork planned(std::move(network));
        ASSERT_EQ(planned.plan.components.size(), 1U);
        const Component& component = planned.plan.components[0];
        SCOPED_TRACE("case " + std::to_string(&c - kPlans));
        EXPECT_EQ(component.pipeA, pipeA);
        EXPECT_EQ(component.pipeB, 3 - pipeA);
        EXPECT_EQ(component.high, c.high);
        EXPECT_EQ(component.high + component.low, c.high == 0 ? 0 : 5);
        EXPECT_EQ(component.throughSign, c.throughSign);
        EXPECT_EQ(component.signA, c.referenceRunsToComponent ? -1 : 1);
    }
}

TEST(NetworkPlan, Counts) {
    const auto counts = [](const NetworkBuilder& network, Components components) {
        auto work = std::make_unique<WorkNetwork>();
        CopyNetwork(*network, *work);
        const NetworkPlan plan = PlanNetwork(*network, *work, components);
        return std::vector<int>{plan.unknowns, plan.equations, plan.knownTerms};
    };
    EXPECT_EQ(counts(NetworkBuilder(), Components::Counted), (std::vector<int>{0, 0, 0}));
    EXPECT_EQ(counts(Branches(), Components::Counted), (std::vector<int>{7, 4, 3}));
    const NetworkBuilder cut = Cut(false, false, CellKind::Pump, 1);
    EXPECT_EQ(counts(cut, Components::Counted), (std::vector<int>{6, 4, 2}));
    EXPECT_EQ(counts(cut, Components::LeftOut), (std::vector<int>{6, 2, 2}));
    EXPECT_EQ(counts(LoopedNetwork(7, 13), Components::Counted), (std::vector<int>{161, 147, 14}));

    NetworkBuilder branches = Branches();
    PipeRec& deleted = branches->Pipes[2];
    deleted.X1 = deleted.StartPoint = deleted.EndPoint = kDeleted;
    branches->Points[3].X = kDeleted;
    EXPECT_EQ(counts(branches, Components::Counted), (std::vector<int>{5, 3, 2}));
}

struct JumpCase {
    const char* name;
    CellKind kind;
    float param1, param2, constant;
    int throughSign;
    double flow;
    ComponentRows rows;
    double value;
};

constexpr double kVelocityHead = 0.5 * 4 / (1000 * 0.00785375 * 0.00785375);  ///< at 2 kg/s, Pa

constexpr JumpCase kJumps[] = {
    {"two coefficients", CellKind::Pump, -10, 500, 0, 1, 2, ComponentRows::Lagged, 460},
    {"whole curve", CellKind::Pump, -10, 5, 600, 1, 2, ComponentRows::Lagged, 570},
    {"counted against the delivery", CellKind::Pump, -10, 5, 600, -1, -2, ComponentRows::Sloped,
     570},
    {"backwards", CellKind::Pump, -10, 5, 600, 1, -2, ComponentRows::Lagged, 550},
    {"backwards", CellKind::Pump, -10, 5, 600, 1, -2, ComponentRows::Sloped, 600},
    {"coefficient", CellKind::Loss, 3, 0, 0, 1, -2, ComponentRows::Lagged, 3 * kVelocityHead},
    {"coefficient", CellKind::Loss, 3, 0, 0, 1, -2, ComponentRows::Sloped, -3 * kVelocityHead},
    {"no flow", CellKind::Loss, 3, 0, 0, 1, 0, ComponentRows::Sloped, 0},
    {"fixed drop goes before", CellKind::Loss, 3, 700, 0, 1, -2, ComponentRows::Sloped, 700},
    {"nothing", CellKind::Loss, 0, 0, 0, 1, 2, ComponentRows::Lagged, 0},
};

TEST(ComponentLaw, RiseAndDropWithTheirSlopes) {
    Settings water;
    water.FluidDensity = 1000;
    PipeRec pipe;
    pipe.Diameter = 0.1F;
    for (const JumpCase& c : kJumps) {
        SCOPED_TRACE(c.name);
        CellRec cell;
        cell.Kind = c.kind;
        cell.Placed = true;
        cell.Param1 = c.param1;
        cell.Param2 = c.param2;
        cell.PumpConstant = c.constant;
        Component component;
        component.throughSign = c.throughSign;
        const auto jump = [&](double flow) {
            return JumpAt(water, cell, component, pipe, flow, c.rows);
        };
        EXPECT_NEAR(jump(c.flow).value, c.value, 1e-6 * kVelocityHead);
        const double difference = (jump(c.flow + 1e-3).value - jump(c.flow - 1e-3).value) / 2e-3;
        if (c.rows == ComponentRows::Sloped) {
            EXPECT_NEAR(jump(c.flow).slope, difference, 1e-6 * std::abs(difference) + 0.1);
        }
        cell.Placed = false;
        EXPECT_EQ(jump(c.flow).value, 0);
    }
}

}  // namespace
}  // namespace idrova
