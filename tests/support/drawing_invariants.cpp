// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/drawing_invariants.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <memory>

#include "base/number_text.h"
#include "editor/drawing_list.h"
#include "editor/pipe_ends.h"
#include "editor/plant_drawing.h"
#include "model/drawn_records.h"
#include "model/grid.h"
#include "model/invariants.h"
#include "projectfile/project_file.h"

namespace idrova {
namespace {

using Faults = std::vector<std::string>;

/// "what number", for a fault.
std::string Named(const char* what, int number) {
    return what + (" " + GeneralText(number));
}

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

/// Where pipes, markers and icons are drawn.
struct DrawnElements {
    int lineCount = 0;
    std::array<std::pair<ScreenPoint, ScreenPoint>, kMaxPipes + 1> lines;
    std::bitset<kMaxCells + 1> markers, icons;
};

DrawnElements ElementsOf(const Project& project, const Editor& editor) {
    DrawingList list;
    DrawPlant(project, editor, list);
    DrawnElements drawn;
    const int half = project.Grid.CellWidth / 2;
    for (const DrawnElement& element : list.elements) {
        const ScreenPoint at = element.from;
        if (element.kind == ElementKind::CellIcon) {
            drawn.icons.set(CellFromPoint(project, at.x + half, at.y + half));
        } else if (element.kind == ElementKind::PointMarker) {
            drawn.markers.set(CellFromPoint(project, at.x, at.y));
        } else if (element.kind == ElementKind::PipeLine) {
            ++drawn.lineCount;
            drawn.lines[element.pipe] = {at, element.to};
        }
    }
    return drawn;
}

void CheckDrawnPipes(const Project& project, const DrawnElements& drawn, Faults& faults) {
    int live = 0;
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        ++live;
        if (drawn.lines[number] !=
            std::pair{PlaceOf(pipe, PipeEnd::Start), PlaceOf(pipe, PipeEnd::End)}) {
            faults.push_back(Named("the line is not drawn from end to end of pipe", number));
        }
    }
    if (drawn.lineCount != live) faults.push_back(Named("pipe lines drawn:", drawn.lineCount));
}

/// A cell with a point, and the one where a pipe was begun, shows a marker unless an icon stands
/// for it.
void CheckDrawnCells(const Project& project, const Editor& editor, const DrawnElements& drawn,
                     Faults& faults) {
    for (int cell = 1; cell <= project.CellCount(); ++cell) {
        const CellRec& record = project.Cells[cell];
        if (drawn.icons.test(cell) != record.Placed) {
            faults.push_back(Named("icon and component disagree in cell", cell));
        }
        const bool begun = editor.state == InsertState::EndPoint && editor.firstCell == cell;
        const bool point = project.CellIsNode[cell] && !record.Placed;
        if (drawn.markers.test(cell) != (point || begun)) {
            faults.push_back(Named("marker and point disagree in cell", cell));
        }
    }
}

void CheckDrawing(const Project& project, Editor editor, Faults& faults) {
    editor.ScrX = editor.ScrY = 1;
    const DrawnElements drawn = ElementsOf(project, editor);
    CheckDrawnPipes(project, drawn, faults);
    CheckDrawnCells(project, editor, drawn, faults);
}

void CheckEditor(const Project& project, const Editor& editor, Faults& faults) {
    const bool begun = editor.state == InsertState::EndPoint;
    const bool onGrid = editor.firstCell >= 1 && editor.firstCell <= project.CellCount();
    if (begun ? !onGrid : editor.firstCell != 0) {
        faults.push_back(Named("no pipe is begun in cell", editor.firstCell));
    }
    if (editor.selectedComponent != 0 && !project.Cells[editor.selectedComponent].Placed) {
        faults.push_back(Named("no component to select in cell", editor.selectedComponent));
    }
    const int current = project.CurrentPipe;
    if (current != 0 && !project.Pipes[current].IsDrawn()) {
        faults.push_back(Named("not a live pipe: the current", current));
    }
    int previous = 0;
    for (const int pipe : editor.alsoSelected) {
        if (current == 0 || pipe == current || pipe <= previous || !project.Pipes[pipe].IsDrawn()) {
            faults.push_back(Named("not to be selected too: pipe", pipe));
        }
        previous = pipe;
    }
}

}  // namespace

std::vector<std::string> BrokenInvariants(const Project& project, const Editor& editor) {
    Faults faults = BrokenInvariants(project);
    if (!faults.empty()) return faults;
    CheckPoints(project, faults);
    CheckEditor(project, editor, faults);
    if (!faults.empty()) return faults;
    CheckCells(project, faults);
    CheckDrawing(project, editor, faults);
    return faults;
}

bool SurvivesReopening(const Project& project) {
    const auto reopened = std::make_unique<Project>();
    const std::string text = ProjectFileText(project);
    return ReadProjectText(text, *reopened) && ProjectFileText(*reopened) == text;
}

}  // namespace idrova
