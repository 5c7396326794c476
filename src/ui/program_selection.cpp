// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/program_selection.h"

#include <algorithm>
#include <iterator>

#include "editor/grid_view.h"
#include "editor/selection.h"
#include "model/drawn_records.h"
#include "ui/program.h"

namespace idrova {

namespace {

int PipeAt(const Project& project, int point) {
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        if (pipe.IsEnd(point)) return number;
    }
    return 0;
}

/// Right of and below the first cell shown, all of the grid is in sight.
void BringIntoView(Program& program, ScreenPoint at) {
    if (IsOnGrid(program.project, Shown(program.project, program.editor, at))) return;
    ScrollDrawing(program.project, program.editor, 1, 1);
}

void SelectDrawnPipe(Program& program, int number) {
    if (number < 1 || number > program.project.numtubo) return;
    const PipeRec& pipe = program.project.Pipes[number];
    if (!pipe.IsDrawn()) return;
    SelectPipe(program.project, program.editor, number);
    program.editor.framesEnabled = true;
    BringIntoView(program, {pipe.X1, pipe.Y1});
}

void ShowPoint(Program& program, int number) {
    if (number < 1 || number > program.project.npres) return;
    SelectDrawnPipe(program, PipeAt(program.project, number));
    const PointRec& point = program.project.Points[number];
    if (point.IsDrawn()) BringIntoView(program, {point.X, point.Y});
}

void SelectComponent(Program& program, int cell) {
    Project& project = program.project;
    if (cell < 1 || cell > project.CellCount() || !project.Cells[cell].Placed) return;
    SelectPipe(project, program.editor, 0);
    program.editor.selectedComponent = cell;
    BringIntoView(program, CellCentre(project, cell));
}

}  // namespace

bool IsShownBeside(const Program& program, NoteOn kind) {
    const WorkMode mode = program.project.settings.Mode;
    return mode == WorkMode::Graphic || (mode == WorkMode::Table && kind == NoteOn::Pipe);
}

void SelectElement(Program& program, const Element& element) {
    if (program.project.settings.Mode == WorkMode::Table && element.kind == NoteOn::Pipe) {
        program.tablePlace.line = element.number - 1;
    }
    if (program.project.settings.Mode != WorkMode::Graphic) return;
    if (element.kind == NoteOn::Pipe) SelectDrawnPipe(program, element.number);
    if (element.kind == NoteOn::Point) ShowPoint(program, element.number);
    if (element.kind == NoteOn::Cell) SelectComponent(program, element.number);
}

void SelectPipes(Program& program, const std::vector<int>& numbers) {
    Project& project = program.project;
    if (project.settings.Mode != WorkMode::Graphic) return;
    std::vector<int> drawn;
    std::ranges::copy_if(numbers, std::back_inserter(drawn), [&](int number) {
        return number <= project.numtubo && project.Pipes[number].IsDrawn();
    });
    SelectPipes(project, program.editor, drawn);
    program.editor.framesEnabled = true;
}

std::vector<int> SelectedPipes(const Program& program) {
    const int only = SelectedNumber(program, NoteOn::Pipe);
    if (only == 0) return {};
    if (program.project.settings.Mode != WorkMode::Graphic) return {only};
    std::vector<int> pipes = SelectedPipes(program.project, program.editor);
    std::ranges::sort(pipes);
    return pipes;
}

int SelectedNumber(const Program& program, NoteOn kind) {
    const Project& project = program.project;
    if (project.settings.Mode == WorkMode::Table) {
        return kind == NoteOn::Pipe ? program.tablePlace.line + 1 : 0;
    }
    if (project.settings.Mode != WorkMode::Graphic) return 0;
    if (kind == NoteOn::Pipe) return project.CurrentPipe;
    if (kind == NoteOn::Cell) return program.editor.selectedComponent;
    const bool point = kind == NoteOn::Point && project.CurrentPipe != 0;
    return point ? project.Pipes[project.CurrentPipe].StartPoint : 0;
}

bool IsSelected(const Program& program, const Element& element) {
    if (element.number == 0) return false;
    if (element.number == SelectedNumber(program, element.kind)) return true;
    const Project& project = program.project;
    return element.kind == NoteOn::Point && SelectedNumber(program, NoteOn::Pipe) != 0 &&
           project.settings.Mode == WorkMode::Graphic &&
           project.Pipes[project.CurrentPipe].IsEnd(element.number);
}

}  // namespace idrova
