// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/grid.h"

#include <cmath>

namespace idrova {
namespace {

int FloorDivide(int value, int divisor) {
    return static_cast<int>(std::floor(static_cast<double>(value) / divisor));
}

}  // namespace

int CellFromPoint(const Project& project, int x, int y) {
    const GridGeometry& grid = project.Grid;
    const int column = FloorDivide(x - grid.CellWidth / 2 - grid.GridLeft, grid.CellWidth) + 1;
    const int row = FloorDivide(y - grid.CellHeight / 2 - grid.GridTop, grid.CellHeight) + 1;
    const int cell = CellAt(column, row, project.GridSize);
    return cell < 0 ? 0 : cell;
}

ScreenPoint PointFromCell(const Project& project, int cell) {
    const int row = FloorDivide(cell - 1, project.GridSize);
    const int column = cell - 1 - row * project.GridSize;
    const GridGeometry& grid = project.Grid;
    return {grid.GridLeft + column * grid.CellWidth, grid.GridTop + row * grid.CellHeight};
}

ScreenPoint CellCentre(const Project& project, int cell) {
    const ScreenPoint corner = PointFromCell(project, cell);
    return {corner.x + project.Grid.CellWidth / 2, corner.y + project.Grid.CellHeight / 2};
}

double SetGridScale(GridGeometry& grid, double zoom) {
    constexpr double unscaledCell = 300;
    int size = static_cast<int>(std::floor(unscaledCell * zoom));
    size -= size % 2;
    grid = {500, 500, size, size};
    return size / unscaledCell;
}

}  // namespace idrova
