// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/run_results.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "hydraulics/fluid_density.h"
#include "hydraulics/solution_check.h"

namespace idrova {
namespace {

constexpr double kSameHead = 1e-5;        ///< relative
constexpr double kNegligibleFlow = 1e-8;  ///< of the largest
constexpr double kAtRest = 1e3;           ///< of what rounding moves: all that flows is rounding

double RelativeDifference(double start, double end) {
    if (start != 0) return std::abs(end - start) / std::abs(start);
    if (end != 0) return 1;
    return 0;
}

/// The largest flow that counts as none. Where nothing flows, that is what the rounding of the
/// heads moves; where something does, even a little of it may be all that a pipe has to carry.
double NegligibleFlow(const WorkNetwork& work, const FlowScale& scale) {
    bool isAtRest = scale.largest <= kAtRest * scale.rounding;
    for (const auto [i, pipe] : DrawnPipes(work)) {
        if (!work.WorkFlowUnknown[i] && pipe.FlowRate != 0) isAtRest = false;
    }
    return kNegligibleFlow * scale.largest + (isAtRest ? scale.rounding : 0);
}

}  // namespace

void CleanUpZeroFlows(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                      StageResult& result) {
    const double negligible =
        NegligibleFlow(work, FlowScaleOf(settings, plan, work, result.solution));
    for (const auto [i, pipe] : DrawnPipes(work)) {
        if (!work.WorkFlowUnknown[i]) continue;
        const double start = result.Pressure(plan, pipe.StartPoint);
        const double end = result.Pressure(plan, pipe.EndPoint);
        const double weight = DensityAt(settings, start, end).value * kGravity;
        if (RelativeDifference(start + weight * pipe.Z1, end + weight * pipe.Z2) >= kSameHead)
            continue;
        if (std::abs(result.Flow(plan, i)) > negligible) continue;
        result.SetFlow(plan, i, 0);
    }
}

void StoreResults(const NetworkPlan& plan, WorkNetwork& work, const StageResult& result) {
    for (const auto [i, pipe] : DrawnPipes(work)) pipe.FlowRate = ToSingle(result.Flow(plan, i));
    for (const auto [i, point] : DrawnPoints(work)) {
        point.Pressure = ToSingle(result.Pressure(plan, i));
    }
    for (std::size_t i = 0; i < plan.components.size(); ++i) {
        const int pipeA = plan.components[i].pipeA;
        if (pipeA != 0) work.WorkComponents[i].record.Result = work.WorkPipes[pipeA].FlowRate;
    }
}

bool IsInRange(const CellRec& pump) {
    const float flow = std::abs(pump.Result);
    return pump.MinFlow <= flow && flow <= pump.MaxFlow;
}

std::vector<int> PumpsOutOfRange(const WorkNetwork& work) {
    std::vector<int> cells;
    for (const auto& [cell, record] : work.WorkComponents) {
        if (record.Kind != CellKind::Pump || !record.Placed || IsInRange(record)) continue;
        cells.push_back(cell);
    }
    return cells;
}

float AddBasePressure(const Settings& settings, WorkNetwork& work) {
    float lowest = 0;
    for (const auto [i, point] : DrawnPoints(work)) {
        point.Pressure += settings.BasePressure;
        lowest = std::min(lowest, point.Pressure);
    }
    return lowest;
}

}  // namespace idrova
