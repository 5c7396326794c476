// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/grid_view.h"

#include <algorithm>

namespace idrova {
namespace {

ScreenPoint FarCorner(const Project& project) {
    const GridGeometry& grid = project.Grid;
    return {grid.GridLeft + project.GridSize * grid.CellWidth,
            grid.GridTop + project.GridSize * grid.CellHeight};
}

}  // namespace

int PlaceUnder(const Project& project, int x, int y) {
    const GridGeometry& grid = project.Grid;
    const ScreenPoint end = FarCorner(project);
    if (x < grid.GridLeft || y < grid.GridTop || x >= end.x || y >= end.y) return 0;
    return CellAt((x - grid.GridLeft) / grid.CellWidth + 1,
                  (y - grid.GridTop) / grid.CellHeight + 1, project.GridSize);
}

int CellShownAt(const Project& project, const Editor& editor, int place) {
    const int size = project.GridSize;
    if (place < 1 || place > project.CellCount()) return 0;
    const int column = (place - 1) % size + editor.ScrX;
    const int row = (place - 1) / size + editor.ScrY;
    return column > size || row > size ? 0 : CellAt(column, row, size);
}

int LastScroll(const Project& project) {
    return 5 * project.GridSize;
}

void ScrollDrawing(const Project& project, Editor& editor, int xOff, int yOff) {
    editor.ScrX = std::clamp(xOff, 1, LastScroll(project));
    editor.ScrY = std::clamp(yOff, 1, LastScroll(project));
    HidePressures(editor);
}

ScreenPoint Shown(const Project& project, const Editor& editor, ScreenPoint at) {
    return {at.x - project.Grid.CellWidth * (editor.ScrX - 1),
            at.y - project.Grid.CellHeight * (editor.ScrY - 1)};
}

bool IsOnGrid(const Project& project, ScreenPoint shown) {
    return PlaceUnder(project, shown.x, shown.y) != 0;
}

ScreenPoint ClampToGrid(const Project& project, ScreenPoint shown) {
    const ScreenPoint end = FarCorner(project);
    return {std::clamp(shown.x, project.Grid.GridLeft, end.x),
            std::clamp(shown.y, project.Grid.GridTop, end.y)};
}

std::optional<PipePart> ShownPart(const Project& project, const Editor& editor,
                                  const PipeRec& pipe) {
    const ScreenPoint from = Shown(project, editor, {pipe.X1, pipe.Y1});
    const ScreenPoint to = Shown(project, editor, {pipe.X2, pipe.Y2});
    const PipePart part{ClampToGrid(project, from), ClampToGrid(project, to)};
    const bool aside = from.x == to.x ? part.from.x != from.x : part.from.y != from.y;
    if (aside || part.from == part.to) return std::nullopt;
    return part;
}

}  // namespace idrova
