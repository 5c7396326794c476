// SPDX-License-Identifier: GPL-3.0-or-later
#include "projectfile/project_content.h"

#include <algorithm>

#include "base/assertion.h"
#include "model/drawn_records.h"
#include "model/grid.h"

namespace idrova {
namespace {

void PlacePipe(const Project& project, const ProjectContent::Pipe& source, PipeRec& pipe) {
    pipe = source.record;
    if (source.startCell == 0) {
        pipe.X1 = pipe.X2 = pipe.Y1 = pipe.Y2 = kDeleted;
        return;
    }
    const ScreenPoint start = CellCentre(project, source.startCell);
    const ScreenPoint end = CellCentre(project, source.endCell);
    pipe.X1 = static_cast<std::int16_t>(start.x);
    pipe.Y1 = static_cast<std::int16_t>(start.y);
    pipe.X2 = static_cast<std::int16_t>(end.x);
    pipe.Y2 = static_cast<std::int16_t>(end.y);
}

void PlacePoint(const Project& project, const ProjectContent::Point& source, PointRec& point) {
    point.Pressure = source.pressure;
    point.Cell = static_cast<std::int16_t>(source.cell);
    if (source.cell == 0) {
        point.X = point.Y = kDeleted;
        return;
    }
    const ScreenPoint centre = CellCentre(project, source.cell);
    point.X = static_cast<std::int16_t>(centre.x);
    point.Y = static_cast<std::int16_t>(centre.y);
}

void MovePoint(Project& project, int number, int x, int y, int cell) {
    PointRec& point = project.Points[static_cast<std::size_t>(number)];
    point.X = static_cast<std::int16_t>(x);
    point.Y = static_cast<std::int16_t>(y);
    point.Cell = static_cast<std::int16_t>(cell);
}

/// A point lies where its pipes end, whatever cell its own line names.
void MovePointsToEnds(const ProjectContent::Pipe& source, const PipeRec& pipe, Project& project) {
    if (!pipe.IsDrawn()) return;
    MovePoint(project, pipe.StartPoint, pipe.X1, pipe.Y1, source.startCell);
    MovePoint(project, pipe.EndPoint, pipe.X2, pipe.Y2, source.endCell);
}

void MarkNodes(Project& project) {
    for (const auto& [number, point] : DrawnPoints(project)) {
        project.CellIsNode[static_cast<std::size_t>(point.Cell)] = true;
    }
}

void PutPipesAndPoints(const ProjectContent& content, Project& project) {
    for (const ProjectContent::Pipe& pipe : content.pipes) {
        const auto slot = static_cast<std::size_t>(++project.numtubo);
        PlacePipe(project, pipe, project.Pipes[slot]);
        project.FlowUnknown[slot] = pipe.flowUnknown;
    }
    for (const ProjectContent::Point& point : content.points) {
        const auto slot = static_cast<std::size_t>(++project.npres);
        PlacePoint(project, point, project.Points[slot]);
        project.PressureUnknown[slot] = point.pressureUnknown;
    }
    for (std::size_t i = 0; i < content.pipes.size(); ++i) {
        MovePointsToEnds(content.pipes[i], project.Pipes[i + 1], project);
    }
    MarkNodes(project);
}

void PutCells(const ProjectContent& content, Project& project) {
    for (const int cell : content.nodeCells) {
        project.CellIsNode[static_cast<std::size_t>(cell)] = true;
    }
    for (const ProjectContent::Component& component : content.components) {
        project.Cells[static_cast<std::size_t>(component.cell)] = component.record;
    }
    for (const ProjectContent::PumpConstant& pump : content.pumpConstants) {
        project.Cells[static_cast<std::size_t>(pump.cell)].PumpConstant = pump.constant;
    }
}

}  // namespace

void PutContent(const ProjectContent& content, Project& project) {
    Assert(project.numtubo == 0 && project.npres == 0);
    PutPipesAndPoints(content, project);
    PutCells(content, project);
    std::copy(content.rows.begin(), content.rows.end(), project.TableRows.begin() + kFirstTableRow);
    for (const ProjectContent::LooseRow& row : content.rowsBelowGap) {
        project.TableRows[static_cast<std::size_t>(row.number)] = row.record;
    }
    project.numins = std::min(static_cast<int>(content.rows.size()), kMaxTableRows);
    if (content.description) project.ProjectDescription = *content.description;
    RebuildPipeCells(project);
}

}  // namespace idrova
