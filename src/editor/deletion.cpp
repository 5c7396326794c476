// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/deletion.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "editor/messages.h"
#include "editor/pipe_ends.h"
#include "editor/selection.h"

namespace idrova {
namespace {

bool IsInUse(const Project& project, int point) {
    return std::any_of(project.Pipes.begin() + 1, project.Pipes.begin() + 1 + project.numtubo,
                       [point](const PipeRec& pipe) { return pipe.IsEnd(point); });
}

void ReleasePoint(Project& project, int number) {
    if (IsInUse(project, number)) return;
    PointRec& point = project.Points[number];
    const int cell = point.Cell;
    point = PointRec{0, kDeleted, kDeleted, 0};
    project.PressureUnknown[number] = true;
    if (project.Cells[cell].IsComponent()) project.Cells[cell] = CellRec();
    project.CellIsNode[cell] = LivePointIn(project, cell) != 0;
}

std::vector<int> ComponentsAtEnds(const Project& project, int pipe) {
    std::vector<int> cells;
    for (const PipeEnd end : {PipeEnd::Start, PipeEnd::End}) {
        const int cell = project.Points[PointAt(project.Pipes[pipe], end)].Cell;
        if (project.Cells[cell].Placed) cells.push_back(cell);
    }
    return cells;
}

/// Turns a live pipe into a deleted slot, and with it those of its points that no other pipe uses.
/// A component at its end loses the pipe it stands in and goes too.
void DeletePipe(Project& project, int number) {
    PipeRec& pipe = project.Pipes[number];
    const std::array ends{pipe.StartPoint, pipe.EndPoint};
    pipe.X1 = pipe.X2 = pipe.Y1 = pipe.Y2 = kDeleted;
    pipe.StartPoint = pipe.EndPoint = pipe.FlowFromPoint = kDeleted;
    for (const int point : ends) ReleasePoint(project, point);
    RebuildPipeCells(project);
}

/// The cell keeps its kind: a plain connection that holds its two pipe pieces together.
void DeleteComponent(Project& project, int cell) {
    const CellKind kind = project.Cells[cell].Kind;
    project.Cells[cell] = CellRec();
    project.Cells[cell].Kind = kind;
}

}  // namespace

void DeleteSelected(Project& project, Editor& editor, MessageBoxes& boxes,
                    const std::function<void()>& showRemoval) {
    HidePressures(editor);
    const auto agreed = [&](Removal removal, const MessageBox& question) {
        editor.removal = std::move(removal);
        showRemoval();
        const bool ok = boxes.Show(question) == Answer::Ok;
        editor.removal = {};
        return ok;
    };
    const int pipe = project.CurrentPipe;
    if (pipe != 0 && agreed({pipe, ComponentsAtEnds(project, pipe)}, AskDeletePipe(pipe))) {
        DeletePipe(project, pipe);
        Deselect(project, editor, pipe);
        if (!project.Cells[editor.selectedComponent].Placed) editor.selectedComponent = 0;
    }
    const int cell = editor.selectedComponent;
    if (cell != 0 && agreed({0, {cell}}, kAskDeleteComponent)) {
        DeleteComponent(project, cell);
        editor.selectedComponent = 0;
    }
}

}  // namespace idrova
