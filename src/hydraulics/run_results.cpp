// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/run_results.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "hydraulics/component_law.h"
#include "hydraulics/loose_part.h"
#include "hydraulics/pipe_drop.h"
#include "hydraulics/solution_check.h"

namespace idrova {
namespace {

constexpr double kSameHead = 1e-5;        ///< relative
constexpr double kNegligibleFlow = 1e-8;  ///< of the largest

double RelativeDifference(double start, double end) {
    if (start != 0) return std::abs(end - start) / std::abs(start);
    if (end != 0) return 1;
    return 0;
}

bool HasNegativeGivenFlow(const WorkNetwork& work, int i) {
    const PipeRec& pipe = work.WorkPipes[i];
    return pipe.IsDrawn() && !work.WorkFlowUnknown[i] && pipe.FlowRate < 0;
}

void NotePipes(const WorkNetwork& work, const StageResult& result,
               std::vector<std::string>& notes) {
    for (int i = 1; i <= work.WorkPipeCount; ++i) {
        if (HasNegativeGivenFlow(work, i)) {
            notes.push_back("Pipe " + GeneralText(i) +
                            " has a negative flow given, which was taken as positive");
        }
        if (IsOverdetermined(work, i)) {
            notes.push_back("Pipe " + GeneralText(i) +
                            " has its flow and both end pressures given: one of the three is too"
                            " many");
        }
        if (result.pipes[i].belowVacuum) {
            notes.push_back("The gas in pipe " + GeneralText(i) + " would fall below a vacuum");
        } else if (!result.pipes[i].settled) {
            notes.push_back("Pipe " + GeneralText(i) +
                            " has not settled: " + PercentText(result.pipes[i].relative));
        }
    }
}

/// The lowest point whose liquid would be torn apart; a gas is told by its pipes.
void NoteVacuum(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                const StageResult& result, std::vector<std::string>& notes) {
    if (settings.EquationType == Equation::Compressible) return;
    int lowest = 0;
    double least = -kAtmosphere - settings.BasePressure;
    for (int i = 1; i <= work.WorkPointCount; ++i) {
        if (!work.WorkPoints[i].IsDrawn() || result.Pressure(plan, i) >= least) continue;
        least = result.Pressure(plan, i);
        lowest = i;
    }
    if (lowest == 0) return;
    notes.push_back("The pressure in point " + GeneralText(lowest) + " would be below a vacuum");
}

void NoteComponent(const Settings& settings, const Component& component, const PipeRec& pipeA,
                   double flow, std::vector<std::string>& notes) {
    const CellRec& cell = component.record;
    if (!cell.Placed) return;
    const std::string number = GeneralText(component.cell);
    if (cell.Kind == CellKind::Pump) {
        if (component.throughSign * flow < 0) {
            notes.push_back("The pump in cell " + number + " runs backwards");
        }
        if (OpensUpwards(cell)) {
            notes.push_back("The curve of the pump in cell " + number +
                            " opens upwards: there may be two working points");
        }
    } else if (cell.Param2 != 0 && std::abs(flow) < FullDropFlow(settings, pipeA)) {
        notes.push_back("The fixed drop in cell " + number +
                        " holds the flow still: less than it is there to drive the flow");
    }
}

}  // namespace

std::string PercentText(double share) {
    const double percent = share * 100;
    if (!(percent < 0.995)) return GeneralText(std::round(percent)) + " %";
    const double rounded = std::max(std::round(percent * 100), 1.0) / 100;
    return "0" + GeneralText(rounded) + " %";
}

void CleanUpZeroFlows(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                      StageResult& result) {
    const FlowScale scale = FlowScaleOf(settings, plan, work, result.solution);
    const double negligible = kNegligibleFlow * scale.largest + scale.rounding;
    const double weight = settings.FluidDensity * kGravity;
    for (int i = 1; i <= work.WorkPipeCount; ++i) {
        const PipeRec& pipe = work.WorkPipes[i];
        if (!pipe.IsDrawn() || !work.WorkFlowUnknown[i]) continue;
        const double start = result.Pressure(plan, pipe.StartPoint) + weight * pipe.Z1;
        const double end = result.Pressure(plan, pipe.EndPoint) + weight * pipe.Z2;
        if (RelativeDifference(start, end) >= kSameHead) continue;
        if (std::abs(result.Flow(plan, i)) > negligible) continue;
        result.SetFlow(plan, i, 0);
    }
}

void StoreResults(const NetworkPlan& plan, WorkNetwork& work, const StageResult& result) {
    for (int i = 1; i <= work.WorkPipeCount; ++i) {
        PipeRec& pipe = work.WorkPipes[i];
        if (pipe.IsDrawn()) pipe.FlowRate = ToSingle(result.Flow(plan, i));
    }
    for (int i = 1; i <= work.WorkPointCount; ++i) {
        PointRec& point = work.WorkPoints[i];
        if (point.IsDrawn()) point.Pressure = ToSingle(result.Pressure(plan, i));
    }
    for (std::size_t i = 0; i < plan.components.size(); ++i) {
        const int pipeA = plan.components[i].pipeA;
        if (pipeA != 0) work.WorkComponents[i].record.Result = work.WorkPipes[pipeA].FlowRate;
    }
}

std::vector<std::string> ResultNotes(const Settings& settings, const NetworkPlan& plan,
                                     const WorkNetwork& work, const StageResult& result) {
    std::vector<std::string> notes;
    const int loose = PipeWithoutGivenPressure(plan, work);
    if (loose != 0) {
        notes.push_back("No pressure is given in the part of the network that holds pipe " +
                        GeneralText(loose));
    }
    NoteVacuum(settings, plan, work, result, notes);
    if (!result.balanced) notes.emplace_back("The flows do not balance at every junction");
    NotePipes(work, result, notes);
    for (const UnsettledComponent& component : result.unsettledComponents) {
        notes.push_back("The component in cell " + GeneralText(component.cell) +
                        " has not settled: " + PercentText(component.relative));
    }
    for (const Component& component : plan.components) {
        if (component.pipeA == 0) continue;
        NoteComponent(settings, component, work.WorkPipes[component.pipeA],
                      result.Flow(plan, component.pipeA), notes);
    }
    return notes;
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
    for (int i = 1; i <= work.WorkPointCount; ++i) {
        PointRec& point = work.WorkPoints[i];
        if (!point.IsDrawn()) continue;
        point.Pressure += settings.BasePressure;
        lowest = std::min(lowest, point.Pressure);
    }
    return lowest;
}

}  // namespace idrova
