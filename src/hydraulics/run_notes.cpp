// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/run_notes.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/number_text.h"
#include "hydraulics/component_law.h"
#include "hydraulics/loose_part.h"
#include "hydraulics/pipe_drop.h"
#include "hydraulics/run_results.h"
#include "hydraulics/solution_check.h"

namespace idrova {
namespace {

constexpr double kRoughest = 0.05;  ///< of the diameter: what the friction formulas were made for

using Notes = std::vector<Note>;

Note OnPipe(int pipe, const std::string& before, const std::string& after) {
    return {before + GeneralText(pipe) + after, NoteOn::Pipe, pipe};
}

Note OnCell(int cell, const std::string& before, const std::string& after) {
    return {before + GeneralText(cell) + after, NoteOn::Cell, cell};
}

void NoteUnsettled(const WorkNetwork& work, const StageResult& result, Notes& notes) {
    std::vector<std::pair<double, Note>> unsettled;
    for (int i = 1; i <= work.WorkPipeCount; ++i) {
        const PipeResidual& pipe = result.pipes[i];
        if (pipe.belowVacuum || pipe.settled) continue;
        unsettled.emplace_back(
            pipe.relative, OnPipe(i, "Pipe ", " has not settled: " + PercentText(pipe.relative)));
    }
    for (const auto& [cell, relative] : result.unsettledComponents) {
        unsettled.emplace_back(relative, OnCell(cell, "The component in cell ",
                                                " has not settled: " + PercentText(relative)));
    }
    std::ranges::stable_sort(unsettled, std::greater(), &std::pair<double, Note>::first);
    for (auto& [relative, note] : unsettled) notes.push_back(std::move(note));
}

void NoteGivenFlow(const WorkNetwork& work, int i, Notes& notes) {
    if (work.WorkPipes[i].FlowRate < 0 && !work.WorkFlowUnknown[i]) {
        notes.push_back(
            OnPipe(i, "Pipe ", " has a negative flow given, which was taken as positive"));
    }
    if (IsOverdetermined(work, i)) {
        notes.push_back(OnPipe(i, "Pipe ",
                               " has its flow and both end pressures given: one of the three is"
                               " too many"));
    }
}

void NotePipes(const WorkNetwork& work, const StageResult& result, Notes& notes) {
    for (int i = 1; i <= work.WorkPipeCount; ++i) {
        if (!work.WorkPipes[i].IsDrawn()) continue;
        NoteGivenFlow(work, i, notes);
        if (result.pipes[i].belowVacuum) {
            notes.push_back(OnPipe(i, "The gas in pipe ", " would fall below a vacuum"));
        }
    }
}

/// The narrowest pipe, if its wall is too rough for the friction formulas.
void NoteRoughness(const Settings& settings, const WorkNetwork& work, Notes& notes) {
    int narrowest = 0;
    for (int i = 1; i <= work.WorkPipeCount; ++i) {
        const PipeRec& pipe = work.WorkPipes[i];
        if (!pipe.IsDrawn() || settings.Roughness <= kRoughest * pipe.Diameter) continue;
        if (narrowest == 0 || pipe.Diameter < work.WorkPipes[narrowest].Diameter) narrowest = i;
    }
    if (narrowest == 0) return;
    notes.push_back(
        OnPipe(narrowest, "The roughness is above a twentieth of the diameter of pipe ", ""));
}

/// The lowest point whose liquid would be torn apart; a gas is told by its pipes.
void NoteVacuum(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                const StageResult& result, Notes& notes) {
    if (settings.EquationType == Equation::Compressible) return;
    int lowest = 0;
    double least = -kAtmosphere - settings.BasePressure;
    for (int i = 1; i <= work.WorkPointCount; ++i) {
        if (!work.WorkPoints[i].IsDrawn() || result.Pressure(plan, i) >= least) continue;
        least = result.Pressure(plan, i);
        lowest = i;
    }
    if (lowest == 0) return;
    notes.push_back({"The pressure in point " + GeneralText(lowest) + " would be below a vacuum",
                     NoteOn::Point, lowest});
}

/// The lowest and the highest that the pipes of a point say.
struct Heights {
    int low = 0, high = 0;
    bool known = false;

    void Add(int height) {
        low = known ? std::min(low, height) : height;
        high = known ? std::max(high, height) : height;
        known = true;
    }
};

void NoteHeights(const WorkNetwork& work, Notes& notes) {
    std::array<Heights, kMaxPoints + 1> heights;
    for (int i = 1; i <= work.WorkPipeCount; ++i) {
        const PipeRec& pipe = work.WorkPipes[i];
        if (!pipe.IsDrawn()) continue;
        heights[pipe.StartPoint].Add(pipe.Z1);
        heights[pipe.EndPoint].Add(pipe.Z2);
    }
    for (int i = 1; i <= work.WorkPointCount; ++i) {
        if (heights[i].low == heights[i].high) continue;
        notes.push_back({"The pipes at point " + GeneralText(i) + " give it different heights, " +
                             GeneralText(heights[i].low) + " m to " + GeneralText(heights[i].high) +
                             " m",
                         NoteOn::Point, i});
    }
}

void NotePump(const Component& component, double flow, Notes& notes) {
    CellRec pump = component.record;
    pump.Result = ToSingle(flow);
    if (component.throughSign * flow < 0) {
        notes.push_back(OnCell(component.cell, "The pump in cell ", " runs backwards"));
    } else if (!IsInRange(pump)) {
        notes.push_back(OnCell(component.cell, "The pump in cell ", " works out of its range"));
    }
    if (OpensUpwards(pump)) {
        notes.push_back(OnCell(component.cell, "The curve of the pump in cell ",
                               " opens upwards: there may be two working points"));
    }
}

void NoteComponent(const Settings& settings, const Component& component, const PipeRec& pipeA,
                   double flow, Notes& notes) {
    const CellRec& cell = component.record;
    if (!cell.Placed) return;
    if (cell.Kind == CellKind::Pump) return NotePump(component, flow, notes);
    if (cell.Param2 == 0 || std::abs(flow) >= FullDropFlow(settings, pipeA)) return;
    notes.push_back(OnCell(component.cell, "The fixed drop in cell ",
                           " holds the flow still: less than it is there to drive the flow"));
}

void NoteNetwork(const NetworkPlan& plan, const WorkNetwork& work, const StageResult& result,
                 Notes& notes) {
    const int loose = PipeWithoutGivenPressure(plan, work);
    if (loose != 0) {
        notes.push_back(
            OnPipe(loose, "No pressure is given in the part of the network that holds pipe ", ""));
    }
    if (!result.balanced) notes.push_back({"The flows do not balance at every junction"});
}

}  // namespace

std::string PercentText(double share) {
    const double percent = share * 100;
    if (!(percent < 0.995)) return GeneralText(std::round(percent)) + " %";
    const double rounded = std::max(std::round(percent * 100), 1.0) / 100;
    return "0" + GeneralText(rounded) + " %";
}

std::vector<Note> ResultNotes(const Settings& settings, const NetworkPlan& plan,
                              const WorkNetwork& work, const StageResult& result) {
    Notes notes;
    NoteUnsettled(work, result, notes);
    NoteNetwork(plan, work, result, notes);
    NoteVacuum(settings, plan, work, result, notes);
    NotePipes(work, result, notes);
    for (const Component& component : plan.components) {
        if (component.pipeA == 0) continue;
        NoteComponent(settings, component, work.WorkPipes[component.pipeA],
                      result.Flow(plan, component.pipeA), notes);
    }
    NoteHeights(work, notes);
    NoteRoughness(settings, work, notes);
    return notes;
}

}  // namespace idrova
