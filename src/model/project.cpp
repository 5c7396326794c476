// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/project.h"

#include <algorithm>

#include "model/drawn_records.h"
#include "model/grid.h"

namespace idrova {
namespace {

void MarkCrossed(Project& project, int pipe, int cell) {
    if (cell < 1 || cell > project.CellCount()) return;
    CellRec& crossed = project.Cells[static_cast<std::size_t>(cell)];
    if (crossed.Kind != CellKind::Empty) return;
    crossed.Kind = CellKind::Crossed;
    crossed.CrossingPipe = static_cast<std::int16_t>(pipe);
}

void MarkCellsOf(Project& project, int number, const PipeRec& pipe) {
    const bool horizontal = pipe.Y1 == pipe.Y2;
    const auto [from, to] =
        horizontal ? std::minmax(pipe.X1, pipe.X2) : std::minmax(pipe.Y1, pipe.Y2);
    const int step = horizontal ? project.Grid.CellWidth : project.Grid.CellHeight;
    for (int at = from; at <= to; at += step) {
        const int cell =
            horizontal ? CellFromPoint(project, at, pipe.Y1) : CellFromPoint(project, pipe.X1, at);
        MarkCrossed(project, number, cell);
    }
}

}  // namespace

void InitialiseProject(Project& project) {
    project.settings = Settings{};
    if (project.ProjectName.empty()) project.ProjectName = kNewProject;
    project.ProjectDescription.clear();
    project.GridSize = 50;
    SetGridScale(project.Grid, kStartZoom);
    ClearNetwork(project);
}

void ClearNetwork(Project& project) {
    project.numtubo = project.npres = project.numins = 0;
    project.CurrentPipe = 0;
    project.Pipes.fill({});
    project.Points.fill({});
    project.Cells.fill({});
    project.FlowUnknown.fill(true);
    project.PressureUnknown.fill(true);
    project.CellIsNode.fill(false);
    project.TableRows.fill({});
}

void ResetProject(Project& project) {
    for (int i = 1; i <= project.npres; ++i) {
        project.PressureUnknown[static_cast<std::size_t>(i)] = true;
        project.Points[static_cast<std::size_t>(i)].Pressure = 0;
    }
    project.Cells.fill(CellRec{});
    project.CellIsNode.fill(false);
    project.numtubo = 0;
    project.npres = 0;
    project.CurrentPipe = 0;
}

void RebuildPipeCells(Project& project) {
    for (CellRec& cell : project.Cells) {
        if (cell.Kind == CellKind::Crossed) cell = CellRec{};
    }
    for (int i = 1; i <= project.numtubo; ++i) {
        PipeRec& pipe = project.Pipes[static_cast<std::size_t>(i)];
        if (!pipe.IsEnd(pipe.FlowFromPoint)) pipe.FlowFromPoint = pipe.StartPoint;
    }
    for (const auto& [number, pipe] : DrawnPipes(project)) MarkCellsOf(project, number, pipe);
}

}  // namespace idrova
