// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/deletion.h"

#include <algorithm>
#include <array>

#include "editor/messages.h"
#include "editor/pipe_ends.h"

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

void DeleteSelected(Project& project, Editor& editor, MessageBoxes& boxes) {
    editor.DataShown = false;
    if (project.CurrentPipe != 0 && boxes.Show(AskDeletePipe(project.CurrentPipe)) == Answer::Ok) {
        DeletePipe(project, project.CurrentPipe);
        project.CurrentPipe = 0;
        editor.pipeSelected = false;
        if (!project.Cells[editor.selectedComponent].Placed) editor.selectedComponent = 0;
    }
    if (editor.selectedComponent != 0 && boxes.Show(kAskDeleteComponent) == Answer::Ok) {
        DeleteComponent(project, editor.selectedComponent);
        editor.selectedComponent = 0;
    }
}

}  // namespace idrova
