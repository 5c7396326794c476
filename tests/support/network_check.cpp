// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/network_check.h"

#include <algorithm>
#include <vector>

#include "base/number_text.h"
#include "model/drawn_records.h"
#include "model/grid.h"

namespace idrova {
namespace {

int PipesAt(const Project& project, int point) {
    int ends = 0;
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        ends += static_cast<int>(pipe.IsEnd(point));
    }
    return ends;
}

/// Live points of each cell.
std::vector<int> CountPointsInCells(const Project& project) {
    std::vector<int> points(kMaxCells + 1);
    for (const auto& [number, point] : DrawnPoints(project)) ++points[point.Cell];
    return points;
}

/// The lowest pipe that crosses each cell; 0 when none does.
std::vector<int> CrossingPipes(const Project& project) {
    std::vector<int> crossing(kMaxCells + 1);
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        const int first =
            CellFromPoint(project, std::min(pipe.X1, pipe.X2), std::min(pipe.Y1, pipe.Y2));
        const int last =
            CellFromPoint(project, std::max(pipe.X1, pipe.X2), std::max(pipe.Y1, pipe.Y2));
        const int step = pipe.Y1 == pipe.Y2 ? 1 : project.GridSize;
        for (int cell = first; cell <= last; cell += step) {
            if (crossing[cell] == 0) crossing[cell] = number;
        }
    }
    return crossing;
}

void CheckCell(const Project& project, int number, int points, int crossing, Faults& faults) {
    const CellRec& cell = project.Cells[number];
    if (project.CellIsNode[number] != (points > 0)) {
        faults.push_back(Named("the node mark is wrong in cell", number));
    }
    if (points > 1 && !cell.IsComponent()) {
        faults.push_back(Named("several points in cell", number));
    }
    if (cell.IsComponent()) {
        if (points != 2) faults.push_back(Named("not two points at the component in cell", number));
        return;
    }
    if ((cell.Kind == CellKind::Crossed) != (crossing != 0)) {
        faults.push_back(Named("the crossing mark is wrong in cell", number));
    } else if (crossing != 0 && cell.CrossingPipe != crossing) {
        faults.push_back(Named("not the lowest crossing pipe in cell", number));
    }
}

}  // namespace

std::string Named(const char* what, int number) {
    return what + (" " + GeneralText(number));
}

void CheckPoints(const Project& project, Faults& faults) {
    for (const auto& [number, point] : DrawnPoints(project)) {
        const int pipes = PipesAt(project, number);
        if (pipes == 0) faults.push_back(Named("no pipe ends at point", number));
        if (project.Cells[point.Cell].IsComponent() && pipes != 1) {
            faults.push_back(Named("not one piece at the component's point", number));
        }
    }
}

void CheckCells(const Project& project, Faults& faults) {
    const std::vector<int> points = CountPointsInCells(project);
    const std::vector<int> crossing = CrossingPipes(project);
    for (int cell = 1; cell <= project.CellCount(); ++cell) {
        CheckCell(project, cell, points[cell], crossing[cell], faults);
    }
}

}  // namespace idrova
