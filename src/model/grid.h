// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/project.h"

namespace idrova {

/// Cell arithmetic of the drawing grid. Cells are numbered from 1 at the top left, row by row;
/// columns and rows count from 1.

struct ScreenPoint {
    int x = 0, y = 0;
    bool operator==(const ScreenPoint&) const = default;
};

/// The cell whose centre is (x, y); 0 for a position that would give a negative number.
int CellFromPoint(const Project& project, int x, int y);

/// Top-left corner of a cell.
ScreenPoint PointFromCell(const Project& project, int cell);

/// Centre of a cell: what pipes and points store.
ScreenPoint CellCentre(const Project& project, int cell);

constexpr int CellAt(int column, int row, int gridSize) {
    return column + (row - 1) * gridSize;
}

constexpr double kStartZoom = 12288.0 / 13260;

/// Sizes the cells for `zoom` (1 is 300 screen units; made even) and returns the zoom used.
double SetGridScale(GridGeometry& grid, double zoom);

}  // namespace idrova
