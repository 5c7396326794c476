// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/epanet_network.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "base/number_text.h"
#include "hydraulics/pipe_drop.h"

namespace idrova {
namespace {

/// The coefficient counts on the velocity in pipe A. A pressure that is given between that pipe and
/// the loss puts it on the other side.
void AddMinorLoss(const Component& component, EpanetNetwork& network) {
    const bool highIsAtA = network.work.WorkPipes[component.pipeA].IsEnd(component.high);
    const int pointA = highIsAtA ? component.high : component.low;
    const double coefficient = component.record.Param1;
    if (network.work.WorkPressureUnknown[pointA]) {
        network.minorLoss[component.pipeA] += coefficient;
    } else {
        const double ratio =
            DiameterOf(network, component.pipeB) / DiameterOf(network, component.pipeA);
        network.minorLoss[component.pipeB] += coefficient * std::pow(ratio, 4);
    }
}

}  // namespace

EpanetNetwork EpanetNetworkOf(const RunRecord& run) {
    EpanetNetwork network{run.settings, *run.results, PlanNetwork(*run.results)};
    std::iota(network.node.begin(), network.node.end(), 0);
    for (const auto& [number, pipe] : DrawnPipes(network.work)) {
        network.minorLoss[number] = pipe.LossSum;
    }
    for (const Component& component : network.plan.components) {
        if (component.high == 0 || IsLink(component)) continue;
        const auto [lower, higher] = std::minmax(component.high, component.low);
        network.node[higher] = lower;
        if (component.record.Placed) AddMinorLoss(component, network);
    }
    return network;
}

bool IsLink(const Component& component) {
    const CellRec& record = component.record;
    return component.high != 0 && record.Placed &&
           (record.Kind == CellKind::Pump || record.Param2 != 0);
}

double DiameterOf(const EpanetNetwork& network, int pipe) {
    const PipeRec& record = network.work.WorkPipes[pipe];
    return SectionGeometry(network.settings, DecimalDouble(record.Diameter),
                           DecimalDouble(record.OuterSize))
        .hydraulicDiameter;
}

int GivenPointOf(const EpanetNetwork& network, int node) {
    for (const auto& [number, point] : DrawnPoints(network.work)) {
        if (!network.work.WorkPressureUnknown[number] && network.node[number] == node) {
            return number;
        }
    }
    return 0;
}

double DemandAt(const EpanetNetwork& network, int point) {
    if (!IsOpenEnd(network.plan, point)) return 0;
    double demand = 0;
    for (const auto& [number, pipe] : DrawnPipes(network.work)) {
        if (!pipe.IsEnd(point)) continue;
        demand += pipe.FlowFromPoint == point ? -pipe.FlowRate : pipe.FlowRate;
    }
    return demand;
}

}  // namespace idrova
