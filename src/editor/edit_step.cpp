// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/edit_step.h"

#include <algorithm>

namespace idrova {
namespace {

template <typename Record>
std::vector<Change<Record>> Differences(const Listed<Record>& before, const Listed<Record>& after) {
    std::vector<Change<Record>> changes;
    auto was = before.begin();
    auto is = after.begin();
    while (was != before.end() || is != after.end()) {
        if (is == after.end() || (was != before.end() && was->first < is->first)) {
            changes.push_back({was->first, was->second, std::nullopt});
            ++was;
        } else if (was == before.end() || is->first < was->first) {
            changes.push_back({is->first, std::nullopt, is->second});
            ++is;
        } else {
            if (was->second != is->second) changes.push_back({is->first, was->second, is->second});
            ++was;
            ++is;
        }
    }
    return changes;
}

void Put(Project& project, int number, const std::optional<Plan::Pipe>& to) {
    PipeRec& pipe = project.Pipes[number];
    bool& unknown = project.FlowUnknown[number];
    const Plan::Pipe wanted = to.value_or(Plan::Pipe{});
    float computed = pipe.IsDrawn() && unknown && wanted.unknown ? pipe.FlowRate : 0;
    if (pipe.DirectionSign() != wanted.record.DirectionSign()) computed = 0 - computed;
    pipe = wanted.record;
    unknown = wanted.unknown;
    if (unknown) pipe.FlowRate = computed;
}

void Put(Project& project, int number, const std::optional<Plan::Point>& to) {
    PointRec& point = project.Points[number];
    bool& unknown = project.PressureUnknown[number];
    const Plan::Point wanted = to.value_or(Plan::Point{});
    const bool stays = point.IsDrawn() && point.Cell == wanted.record.Cell;
    const float computed = stays && unknown && wanted.unknown ? point.Pressure : 0;
    point = wanted.record;
    unknown = wanted.unknown;
    if (unknown) point.Pressure = computed;
}

void Put(Project& project, int cell, const std::optional<CellRec>& to) {
    CellRec& record = project.Cells[cell];
    const float computed = record.Placed && to && to->Placed ? record.Result : 0;
    record = to.value_or(CellRec{});
    record.Result = computed;
}

void Put(Project& project, int cell, const std::optional<bool>& to) {
    project.CellIsNode[cell] = to.has_value();
}

/// `side` chooses the state that the records go to; returns how many numbers are in use then.
template <typename Record, typename Side>
int PutAll(const std::vector<Change<Record>>& changes, const Side& side, Project& project,
           int used = 0) {
    for (const Change<Record>& change : changes) {
        const std::optional<Record>& to = side(change);
        Put(project, change.number, to);
        used = to ? std::max(used, change.number) : std::min(used, change.number - 1);
    }
    return used;
}

template <typename Side>
void Put(const EditStep& step, const Side& side, Project& project) {
    project.numtubo = PutAll(step.pipes, side, project, project.numtubo);
    project.npres = PutAll(step.points, side, project, project.npres);
    PutAll(step.components, side, project);
    PutAll(step.nodes, side, project);
    RebuildPipeCells(project);
}

void Select(const Plan::Selection& selection, Project& project, Editor& editor) {
    project.CurrentPipe = selection.pipe;
    editor.alsoSelected = selection.others;
    editor.selectedComponent = selection.component;
    editor.selectedIn = 0;
}

}  // namespace

Plan PlanOf(const Project& project, const Editor& editor) {
    Plan plan;
    for (int i = 1; i <= project.numtubo; ++i) {
        PipeRec pipe = project.Pipes[i];
        if (project.FlowUnknown[i]) pipe.FlowRate = 0;
        plan.pipes.push_back({i, {pipe, project.FlowUnknown[i]}});
    }
    for (int i = 1; i <= project.npres; ++i) {
        PointRec point = project.Points[i];
        if (project.PressureUnknown[i]) point.Pressure = 0;
        plan.points.push_back({i, {point, project.PressureUnknown[i]}});
    }
    for (int cell = 1; cell <= project.CellCount(); ++cell) {
        if (project.CellIsNode[cell]) plan.nodes.emplace_back(cell, true);
        if (!project.Cells[cell].IsComponent()) continue;
        plan.components.emplace_back(cell, project.Cells[cell]);
        plan.components.back().second.Result = 0;
    }
    plan.selection = {project.CurrentPipe, editor.alsoSelected, editor.selectedComponent};
    return plan;
}

EditStep StepBetween(const Plan& before, const Plan& after) {
    return {Differences(before.pipes, after.pipes),
            Differences(before.points, after.points),
            Differences(before.components, after.components),
            Differences(before.nodes, after.nodes),
            before.selection,
            after.selection};
}

void TakeBack(const EditStep& step, Project& project, Editor& editor) {
    Put(
        step, [](const auto& change) -> const auto& { return change.before; }, project);
    Select(step.before, project, editor);
}

void DoAgain(const EditStep& step, Project& project, Editor& editor) {
    Put(
        step, [](const auto& change) -> const auto& { return change.after; }, project);
    Select(step.after, project, editor);
}

}  // namespace idrova
