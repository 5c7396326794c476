// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/run_notes.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/number_text.h"
#include "hydraulics/component_law.h"
#include "hydraulics/fluid_density.h"
#include "hydraulics/friction_law.h"
#include "hydraulics/given_values.h"
#include "hydraulics/loose_part.h"
#include "hydraulics/pipe_drop.h"
#include "hydraulics/run_results.h"
#include "hydraulics/solution_check.h"

namespace idrova {
namespace {

constexpr double kRoughest = 0.05;    ///< of the diameter: what the friction formulas were made for
constexpr double kFastest = 0.3;      ///< of the speed of sound, from where a gas's inertia counts
constexpr double kLaminarEnd = 2300;  ///< Re
constexpr double kNegligibleDrop = 0.01;  ///< of the largest

using Notes = std::vector<Note>;

Note OnPipe(int pipe, const std::string& before, const std::string& after) {
    return {before + GeneralText(pipe) + after, NoteOn::Pipe, pipe};
}

void NoteUnsettled(const WorkNetwork& work, const StageResult& result, Notes& notes) {
    std::vector<std::pair<double, Note>> unsettled;
    for (const auto [i, pipe] : DrawnPipes(work)) {
        const PipeResidual& residual = result.pipes[i];
        if (residual.belowVacuum || residual.settled) continue;
        unsettled.emplace_back(
            residual.relative,
            OnPipe(i, "Pipe ", " has not settled: " + PercentText(residual.relative)));
    }
    for (const auto& [cell, relative] : result.unsettledComponents) {
        unsettled.emplace_back(relative, NoteOnCell(work, cell, "The component",
                                                    " has not settled: " + PercentText(relative)));
    }
    std::ranges::stable_sort(unsettled, std::greater(), &std::pair<double, Note>::first);
    for (auto& [relative, note] : unsettled) notes.push_back(std::move(note));
}

/// Such a pipe keeps the run from settling, however well its law holds.
void NoteThinGas(const WorkNetwork& work, const StageResult& result, Notes& notes) {
    for (const auto [i, pipe] : DrawnPipes(work)) {
        if (!result.pipes[i].belowVacuum) continue;
        notes.push_back(OnPipe(i, "The gas in pipe ", " would fall below a vacuum"));
    }
}

void NoteGivenFlow(const WorkNetwork& work, int i, const PipeRec& pipe, Notes& notes) {
    if (pipe.FlowRate < 0 && !work.WorkFlowUnknown[i]) {
        notes.push_back(
            OnPipe(i, "Pipe ", " has a negative flow given, which was taken as positive"));
    }
    if (IsOverdetermined(work, i)) {
        notes.push_back(OnPipe(i, "Pipe ",
                               " has its flow and both end pressures given: one of the three is"
                               " too many"));
    }
}

/// What is given for pipes.
void NotePipes(const WorkNetwork& work, Notes& notes) {
    for (const auto [i, pipe] : DrawnPipes(work)) {
        NoteGivenFlow(work, i, pipe, notes);
        if (pipe.LossSum >= 0) continue;
        notes.push_back(
            OnPipe(i, "The fittings of pipe ",
                   " have a negative sum of coefficients: they drive the flow, and there"
                   " may be several solutions"));
    }
}

/// The narrowest pipe, if its wall is too rough for the friction formulas.
void NoteRoughness(const Settings& settings, const WorkNetwork& work, Notes& notes) {
    int narrowest = 0;
    double least = settings.Roughness / kRoughest;
    for (const auto [i, pipe] : DrawnPipes(work)) {
        const double diameter = SectionOf(settings, pipe).hydraulicDiameter;
        if (diameter >= least) continue;
        least = diameter;
        narrowest = i;
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
    for (const auto [i, point] : DrawnPoints(work)) {
        if (result.Pressure(plan, i) >= least) continue;
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
    for (const auto [i, pipe] : DrawnPipes(work)) {
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

void NotePump(const WorkNetwork& work, const Component& component, double flow, Notes& notes) {
    CellRec pump = component.record;
    pump.Result = ToSingle(flow);
    const auto add = [&](const std::string& what, const std::string& after) {
        notes.push_back(NoteOnCell(work, component.cell, what, after));
    };
    if (component.throughSign * flow < 0) {
        add("The pump", " runs backwards");
    } else if (!IsInRange(pump)) {
        add("The pump", " works out of its range");
    }
    if (OpensUpwards(pump)) {
        add("The curve of the pump", " opens upwards: there may be two working points");
    }
}

void NoteComponent(const Settings& settings, const WorkNetwork& work, const Component& component,
                   double flow, Notes& notes) {
    const CellRec& cell = component.record;
    if (!cell.Placed) return;
    if (cell.Kind == CellKind::Pump) return NotePump(work, component, flow, notes);
    if (cell.Param2 < 0 || (cell.Param2 == 0 && cell.Param1 < 0)) {
        notes.push_back(NoteOnCell(work, component.cell, "The loss",
                                   " is negative: it drives the flow, and there may be several"
                                   " solutions"));
        return;
    }
    if (cell.Param2 == 0) return;
    if (std::abs(flow) >= FullDropFlow(settings, work.WorkPipes[component.pipeA])) return;
    notes.push_back(NoteOnCell(work, component.cell, "The fixed drop",
                               " holds the flow still: less than it is there to drive the flow"));
}

/// At the end where the gas is thinner, with sound at constant temperature: the isothermal law
/// leaves out a drop by about the square of it.
double SpeedOfSoundShare(const Settings& settings, const PipeRec& pipe, double flow,
                         double lowerEnd) {
    const double pressure = kAtmosphere + settings.BasePressure + lowerEnd;
    const double density = GasDensity(settings, pressure);
    return std::abs(flow) / SectionOf(settings, pipe).area / std::sqrt(pressure * density);
}

/// The fastest pipe of a gas, where its inertia counts.
void NoteMach(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
              const StageResult& result, Notes& notes) {
    if (settings.EquationType != Equation::Compressible) return;
    int fastest = 0;
    double most = kFastest;
    for (const auto [i, pipe] : DrawnPipes(work)) {
        if (result.pipes[i].belowVacuum) continue;
        const double lower =
            std::min(result.Pressure(plan, pipe.StartPoint), result.Pressure(plan, pipe.EndPoint));
        const double share = SpeedOfSoundShare(settings, pipe, result.Flow(plan, i), lower);
        if (!(share > most)) continue;
        most = share;
        fastest = i;
    }
    if (fastest == 0) return;
    notes.push_back(OnPipe(fastest, "The gas in pipe ",
                           " reaches " + PercentText(most) +
                               " of the speed of sound: above 30 % its inertia, which is left"
                               " out, counts"));
}

/// The friction formula over the laminar law, less 1, where a pipe is laminar; else 0. Where the
/// flow is unknown the drop below Re 50 is proportional to it, as that of the law is.
double LaminarDeviation(const Settings& settings, const PipeRec& pipe, double flow, bool unknown) {
    const SectionSize section = SectionOf(settings, pipe);
    if (flow == 0 || ReynoldsNumber(settings, section, flow) >= kLaminarEnd) return 0;
    double q = std::abs(flow);
    if (unknown) q = std::max(q, FlowAtReynolds(settings, section, kCreepingReynolds));
    return FrictionFactor(settings, pipe.Diameter, pipe.OuterSize, q) *
               ReynoldsNumber(settings, section, q) / 16 -
           1;
}

/// Of the laminar pipes that count, how many there are and which is farthest off.
void NoteLaminar(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                 const StageResult& result, Notes& notes) {
    int count = 0;
    int farthest = 0;
    double most = 0;
    for (const auto [i, pipe] : DrawnPipes(work)) {
        if (!(result.pipes[i].drop > kNegligibleDrop * result.largestDrop)) continue;
        const double off =
            LaminarDeviation(settings, pipe, result.Flow(plan, i), work.WorkFlowUnknown[i]);
        if (off == 0) continue;
        ++count;
        if (std::abs(off) <= std::abs(most)) continue;
        most = off;
        farthest = i;
    }
    if (count == 0) return;
    const bool alone = count == 1;
    Note note = OnPipe(farthest, "The flow in pipe ",
                       (alone ? "" : ", and in " + GeneralText(count - 1) + " more,") +
                           " is laminar (Re below 2300): the friction formula gives " +
                           (alone ? "" : "up to ") + PercentText(std::abs(most)) +
                           (most < 0 ? " less" : " more") + " than the laminar law");
    note.weight = NoteWeight::Remark;
    notes.push_back(note);
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

/// Why there is no single solution, and what the numbers are then.
void NoteSingular(const NetworkPlan& plan, const WorkNetwork& work, bool finite, Notes& notes) {
    for (const Note& note : MissingValues(plan, work)) notes.push_back(note);
    for (const Note& note : SurplusValues(plan, work)) {
        const bool told = note.on == NoteOn::Pipe && IsOverdetermined(work, note.number);
        if (!told) notes.push_back(note);
    }
    notes.push_back({"The given values leave no single solution"});
    if (finite) notes.back().text += "; all numbers are rough, also in parts that have one";
}

void NoteUnjoined(const NetworkPlan& plan, const WorkNetwork& work, Notes& notes) {
    for (const Component& component : plan.components) {
        if (component.high != 0 || !component.record.Placed) continue;
        const bool hasPipes = component.pipeA != 0 && component.pipeB != 0;
        notes.push_back(NoteOnCell(
            work, component.cell, "The component",
            hasPipes ? " does not point along its pipes" : " does not stand between two pipes"));
    }
}

}  // namespace

Note NoteOnCell(const WorkNetwork& work, int cell, const std::string& what,
                const std::string& after) {
    const int column = (cell - 1) % work.GridSize + 1;
    const int row = (cell - 1) / work.GridSize + 1;
    return {what + " in column " + GeneralText(column) + ", row " + GeneralText(row) + after,
            NoteOn::Cell, cell};
}

std::string PercentText(double share) {
    const double percent = share * 100;
    if (!(percent < 0.995)) return GeneralText(std::round(percent)) + " %";
    const double rounded = std::max(std::round(percent * 100), 1.0) / 100;
    return "0" + GeneralText(rounded) + " %";
}

std::vector<Note> ResultNotes(const Settings& settings, const NetworkPlan& plan,
                              const WorkNetwork& work, const StageResult& result) {
    Notes notes;
    NoteNetwork(plan, work, result, notes);
    NoteUnjoined(plan, work, notes);
    if (result.singular) NoteSingular(plan, work, result.finite, notes);
    NoteUnsettled(work, result, notes);
    NoteThinGas(work, result, notes);
    if (result.finite) NoteVacuum(settings, plan, work, result, notes);
    NotePipes(work, notes);
    if (result.finite) {
        NoteMach(settings, plan, work, result, notes);
        for (const Component& component : plan.components) {
            if (component.pipeA == 0) continue;
            NoteComponent(settings, work, component, result.Flow(plan, component.pipeA), notes);
        }
    }
    NoteHeights(work, notes);
    NoteRoughness(settings, work, notes);
    if (result.finite) NoteLaminar(settings, plan, work, result, notes);
    return notes;
}

}  // namespace idrova
