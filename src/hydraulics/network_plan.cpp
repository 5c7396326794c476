// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/network_plan.h"

#include <algorithm>

namespace idrova {
namespace {

/// +1 when the component's delivery (its high-pressure end) is point b, -1 when it is point a, 0
/// when the drawing does not tell: the pieces' x or y sums decide, by the pump's direction.
int DeliverySide(const CellRec& cell, const PipeRec& pipeA, const PipeRec& pipeB) {
    const int alongX = (pipeB.X1 + pipeB.X2) - (pipeA.X1 + pipeA.X2);
    const int alongY = (pipeB.Y1 + pipeB.Y2) - (pipeA.Y1 + pipeA.Y2);
    int side = 0;
    if (cell.Direction == Delivery::Right) side = alongX;
    if (cell.Direction == Delivery::Down) side = alongY;
    if (cell.Direction == Delivery::Left) side = -alongX;
    if (cell.Direction == Delivery::Up) side = -alongY;
    if (side == 0) return 0;
    return side > 0 ? 1 : -1;
}

struct EndPoints {
    int a = 0, b = 0;
};

EndPoints PointsInCell(const WorkNetwork& work, int cell) {
    EndPoints points;
    for (int i = 1; i <= work.WorkPointCount; ++i) {
        if (work.WorkPoints[i].Cell != cell) continue;
        (points.a == 0 ? points.a : points.b) = i;
    }
    return points;
}

int LastPipeAt(const WorkNetwork& work, int point) {
    int last = 0;
    for (const auto [i, pipe] : DrawnPipes(work)) {
        if (pipe.IsEnd(point)) last = i;
    }
    return last;
}

void PlacePump(const CellRec& cell, const WorkNetwork& work, EndPoints points,
               Component& component) {
    const PipeRec& pipeA = work.WorkPipes[component.pipeA];
    const int side = DeliverySide(cell, pipeA, work.WorkPipes[component.pipeB]);
    if (side == 0) return;
    component.high = side > 0 ? points.b : points.a;
    component.low = side > 0 ? points.a : points.b;
    // A positive flow of A that leaves point a runs from b to a.
    const bool runsToA = pipeA.FlowFromPoint == points.a;
    component.throughSign = runsToA == (side < 0) ? 1 : -1;
}

/// Upstream is where pipe A's reference direction brings the flow from.
void PlaceLoss(const WorkNetwork& work, EndPoints points, Component& component) {
    const bool runsToA = work.WorkPipes[component.pipeA].FlowFromPoint == points.a;
    component.high = runsToA ? points.b : points.a;
    component.low = runsToA ? points.a : points.b;
}

Component PlanComponent(const WorkComponent& placed, const WorkNetwork& work) {
    Component component;
    component.cell = placed.cell;
    component.record = placed.record;
    const EndPoints points = PointsInCell(work, placed.cell);
    if (points.b == 0) return component;
    component.pipeA = LastPipeAt(work, points.a);
    component.pipeB = LastPipeAt(work, points.b);
    if (component.pipeA == 0 || component.pipeB == 0) return component;

    const int fromA = work.WorkPipes[component.pipeA].FlowFromPoint;
    component.signA = fromA == points.a || fromA == points.b ? 1 : -1;
    component.signB = work.WorkPipes[component.pipeB].FlowFromPoint == points.b ? 1 : -1;
    if (placed.record.Kind == CellKind::Pump && placed.record.Placed) {
        PlacePump(placed.record, work, points, component);
    } else {
        PlaceLoss(work, points, component);
    }
    return component;
}

void NumberPipes(const WorkNetwork& work, NetworkPlan& plan) {
    for (const auto [i, pipe] : DrawnPipes(work)) {
        plan.flowUnknown[i] = ++plan.unknowns;
        ++plan.equations;
        if (!work.WorkFlowUnknown[i]) ++plan.knownTerms;
    }
}

void NumberPoints(const WorkNetwork& work, NetworkPlan& plan) {
    for (const auto [i, point] : DrawnPoints(work)) {
        plan.pressureUnknown[i] = ++plan.unknowns;
        if (!work.WorkPressureUnknown[i]) ++plan.knownTerms;
    }
}

/// A pipe that returns to its own start adds nothing to the balance there.
void PlanJunctions(const WorkNetwork& work, NetworkPlan& plan) {
    for (const auto [i, pipe] : DrawnPipes(work)) {
        ++plan.pipesAtPoint[pipe.StartPoint];
        if (pipe.EndPoint != pipe.StartPoint) ++plan.pipesAtPoint[pipe.EndPoint];
    }
    std::array<int, kMaxPoints + 1> junctionAt{};
    for (int i = 1; i <= work.WorkPointCount; ++i) {
        if (plan.pipesAtPoint[i] > 1) junctionAt[i] = ++plan.junctions;
    }
    for (const auto [i, pipe] : DrawnPipes(work)) {
        if (pipe.StartPoint == pipe.EndPoint) continue;
        for (const int point : {pipe.StartPoint, pipe.EndPoint}) {
            if (junctionAt[point] == 0) continue;
            plan.junctionTerms.push_back(
                {junctionAt[point], i, pipe.FlowFromPoint == point ? -1 : 1});
        }
    }
    plan.equations += plan.junctions;
}

}  // namespace

NetworkPlan PlanNetwork(const WorkNetwork& work) {
    NetworkPlan plan;
    NumberPipes(work, plan);
    NumberPoints(work, plan);
    PlanJunctions(work, plan);
    for (const WorkComponent& placed : work.WorkComponents) {
        plan.components.push_back(PlanComponent(placed, work));
        plan.equations += 2;
    }
    return plan;
}

bool IsOpenEnd(const NetworkPlan& plan, int point) {
    const auto holds = [point](const Component& component) {
        return component.high == point || component.low == point;
    };
    return plan.pipesAtPoint[point] == 1 && std::ranges::none_of(plan.components, holds);
}

}  // namespace idrova
