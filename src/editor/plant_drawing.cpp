// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/plant_drawing.h"

#include <algorithm>
#include <array>

#include "base/number_text.h"
#include "editor/data_labels.h"
#include "editor/grid_view.h"
#include "editor/pipe_colours.h"
#include "editor/pipe_ends.h"
#include "editor/pipe_insertion.h"
#include "model/drawn_records.h"

namespace idrova {
namespace {

constexpr int kLeader = 300;  ///< reach of a leader line, screen units

enum class Marks { None, Selection };

Rgb ColourOf(const Project& project, const Editor& editor, const PipeColours& colours, int pipe) {
    if (editor.removal.pipe == pipe) return drawing_colour::kRemoved;
    const bool selected =
        project.CurrentPipe == pipe || std::ranges::binary_search(editor.alsoSelected, pipe);
    return selected ? drawing_colour::kSelectedPipe : colours.Of(pipe);
}

void DrawPipes(const Project& project, const Editor& editor, Marks marks, DrawingSurface& surface) {
    const PipeColours colours(project, editor);
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        const auto part = ShownPart(project, editor, pipe);
        if (!part) continue;
        surface.PipeLine(number, part->from, part->to,
                         marks == Marks::None ? drawing_colour::kPipe
                                              : ColourOf(project, editor, colours, number));
    }
}

void MarkRemovedCells(const Project& project, const Editor& editor, DrawingSurface& surface) {
    for (const int cell : editor.removal.cells) {
        const ScreenPoint corner = Shown(project, editor, PointFromCell(project, cell));
        if (IsOnGrid(project, corner)) surface.CellFill(corner, drawing_colour::kRemoved);
    }
}

/// Relative to the program folder; empty where no component is placed.
std::string_view IconFile(const CellRec& cell) {
    if (!cell.Placed) return {};
    if (cell.Kind == CellKind::Loss) return "IMG\\PERC.ico";
    constexpr std::array<std::string_view, 4> pumps = {"IMG\\arrt.ico", "IMG\\ardn.ico",
                                                       "IMG\\arlt.ico", "IMG\\arup.ico"};
    if (cell.Direction == Delivery::None) return {};
    return pumps[static_cast<std::size_t>(cell.Direction) - 1];
}

void PlacePointMarker(const Project& project, const Editor& editor, ScreenPoint centre,
                      DrawingSurface& surface) {
    const ScreenPoint shown = Shown(project, editor, centre);
    if (IsOnGrid(project, shown)) surface.PointMarker(shown);
}

/// A component's icon stands for the two points in its cell.
void DrawMarkers(const Project& project, const Editor& editor, DrawingSurface& surface) {
    for (const auto& [number, point] : DrawnPoints(project)) {
        if (!IconFile(project.Cells[point.Cell]).empty()) continue;
        PlacePointMarker(project, editor, {point.X, point.Y}, surface);
    }
    if (editor.state == InsertState::EndPoint) {
        PlacePointMarker(project, editor, CellCentre(project, editor.firstCell), surface);
    }
}

void DrawIcons(const Project& project, const Editor& editor, DrawingSurface& surface) {
    for (int cell = 1; cell <= project.CellCount(); ++cell) {
        const std::string_view file = IconFile(project.Cells[cell]);
        if (file.empty()) continue;
        const ScreenPoint corner = Shown(project, editor, PointFromCell(project, cell));
        if (IsOnGrid(project, corner)) surface.CellIcon(corner, file);
    }
}

void DrawSelectedPipe(const Project& project, const Editor& editor, DrawingSurface& surface) {
    const bool named = editor.DataShown && editor.labels == LabelKind::Pressures;
    if (project.CurrentPipe == 0 || named) return;
    const PipeRec& pipe = project.Pipes[project.CurrentPipe];
    for (const PipeEnd end : {PipeEnd::Start, PipeEnd::End}) {
        const ScreenPoint from = Shown(project, editor, PlaceOf(pipe, end));
        if (!IsOnGrid(project, from)) continue;
        const int point = PointAt(pipe, end);
        const int aside = end == FarEnd(pipe) ? kLeader : -kLeader;
        surface.LeaderLabel(
            from, {from.x + aside, from.y - kLeader}, GeneralText(point),
            project.PressureUnknown[point] ? drawing_colour::kUnknown : drawing_colour::kKnown);
    }
}

void DrawSelectedComponent(const Project& project, const Editor& editor, DrawingSurface& surface) {
    const int cell = editor.selectedComponent;
    if (cell == 0) return;
    const ScreenPoint from = Shown(project, editor, CellCentre(project, cell));
    if (!IsOnGrid(project, from)) return;
    surface.LeaderLabel(from, {from.x - kLeader, from.y - kLeader},
                        GeneralText(cell) + " " + project.Cells[cell].Name, drawing_colour::kKnown);
}

void DrawElements(const Project& project, const Editor& editor, Marks marks,
                  DrawingSurface& surface) {
    DrawPipes(project, editor, marks, surface);
    DrawMarkers(project, editor, surface);
    DrawIcons(project, editor, surface);
}

}  // namespace

void DrawPlant(const Project& project, const Editor& editor, DrawingSurface& surface) {
    surface.Grid(editor.ScrX, editor.ScrY);
    MarkRemovedCells(project, editor, surface);
    DrawElements(project, editor, Marks::Selection, surface);
    DrawSelectedPipe(project, editor, surface);
    DrawSelectedComponent(project, editor, surface);
    ApplyDataLabels(project, editor, surface);
}

void DrawPlantOnPaper(const Project& project, const Editor& editor, DrawingSurface& surface) {
    surface.Grid(editor.ScrX, editor.ScrY);
    DrawElements(project, editor, Marks::None, surface);
    ApplyDataLabels(project, editor, surface);
}

void DrawBegunPipe(const Project& project, const Editor& editor, int cell,
                   DrawingSurface& surface) {
    const auto pipe = PipeTo(project, editor, cell);
    if (!pipe) return;
    const ScreenPoint from = ClampToGrid(project, Shown(project, editor, pipe->from));
    const ScreenPoint to = Shown(project, editor, pipe->to);
    surface.PipeLine(0, from, to,
                     pipe->refused ? drawing_colour::kRefused : drawing_colour::kBegunPipe);
    const int half = project.Grid.CellWidth / 2;
    surface.TextLabel({to.x + half, to.y + half}, GeneralText(pipe->cells),
                      pipe->refused ? drawing_colour::kUnknown : drawing_colour::kKnown);
}

}  // namespace idrova
