// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/run_results.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "hydraulics/component_law.h"
#include "hydraulics/loose_part.h"
#include "hydraulics/messages.h"
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
void NoteVacuum(const Project& project, const NetworkPlan& plan, const WorkNetwork& work,
                const StageResult& result, std::vector<std::string>& notes) {
    if (project.settings.EquationType == Equation::Compressible) return;
    int lowest = 0;
    double least = -kAtmosphere - project.settings.BasePressure;
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

void CleanUpZeroFlows(const Project& project, const NetworkPlan& plan, const WorkNetwork& work,
                      StageResult& result) {
    const FlowScale scale = FlowScaleOf(project.settings, plan, work, result.solution);
    const double negligible = kNegligibleFlow * scale.largest + scale.rounding;
    const double weight = project.settings.FluidDensity * kGravity;
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

void StoreResults(Project& project, const NetworkPlan& plan, WorkNetwork& work,
                  const StageResult& result, bool intoProject) {
    for (int i = 1; i <= work.WorkPipeCount; ++i) {
        PipeRec& pipe = work.WorkPipes[i];
        if (!pipe.IsDrawn()) continue;
        pipe.FlowRate = ToSingle(result.Flow(plan, i));
        if (intoProject) project.Pipes[i].FlowRate = pipe.FlowRate;
    }
    for (int i = 1; i <= work.WorkPointCount; ++i) {
        PointRec& point = work.WorkPoints[i];
        if (!point.IsDrawn()) continue;
        point.Pressure = ToSingle(result.Pressure(plan, i));
        if (intoProject) project.Points[i].Pressure = point.Pressure;
    }
    for (const Component& component : plan.components) {
        if (component.pipeA == 0) continue;
        project.Cells[component.cell].Result = work.WorkPipes[component.pipeA].FlowRate;
    }
}

std::vector<std::string> ResultNotes(const Project& project, const NetworkPlan& plan,
                                     const WorkNetwork& work, const StageResult& result) {
    std::vector<std::string> notes;
    const int loose = PipeWithoutGivenPressure(plan, work);
    if (loose != 0) {
        notes.push_back("No pressure is given in the part of the network that holds pipe " +
                        GeneralText(loose));
    }
    if (project.settings.FluidViscosity <= 0) notes.emplace_back("The fluid has no viscosity");
    if (project.settings.FluidDensity < 0)
        notes.emplace_back("The density of the fluid is negative");
    NoteVacuum(project, plan, work, result, notes);
    if (!result.balanced) notes.emplace_back("The flows do not balance at every junction");
    NotePipes(work, result, notes);
    for (const UnsettledComponent& component : result.unsettledComponents) {
        notes.push_back("The component in cell " + GeneralText(component.cell) +
                        " has not settled: " + PercentText(component.relative));
    }
    for (const Component& component : plan.components) {
        if (component.pipeA == 0) continue;
        NoteComponent(project.settings, component, work.WorkPipes[component.pipeA],
                      result.Flow(plan, component.pipeA), notes);
    }
    return notes;
}

bool IsInRange(const CellRec& pump) {
    const float flow = std::abs(pump.Result);
    return pump.MinFlow <= flow && flow <= pump.MaxFlow;
}

void CheckWorkingPoints(const Project& project, const NetworkPlan& plan, MessageBoxes& boxes) {
    std::string outOfRange;
    for (const Component& component : plan.components) {
        const CellRec& cell = project.Cells[component.cell];
        if (cell.Kind != CellKind::Pump || !cell.Placed || IsInRange(cell)) continue;
        outOfRange += StrText(component.cell) + " ,";
    }
    if (!outOfRange.empty()) boxes.Show(OutOfRangePumps(outOfRange));
}

void AddBasePressure(Project& project, WorkNetwork& work, MessageBoxes& boxes) {
    float lowest = 0;
    for (int i = 1; i <= work.WorkPointCount; ++i) {
        PointRec& point = work.WorkPoints[i];
        if (!point.IsDrawn()) continue;
        point.Pressure += project.settings.BasePressure;
        lowest = std::min(lowest, point.Pressure);
    }
    if (lowest >= 0) return;
    const MessageBox question = NegativePressures(project.settings.BasePressure / kPascalPerBar);
    if (boxes.Show(question) == Answer::Yes) project.settings.BasePressure = -lowest;
}

}  // namespace idrova
