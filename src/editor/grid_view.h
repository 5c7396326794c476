// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "editor/editor_state.h"
#include "model/grid.h"
#include "model/project.h"

namespace idrova {

/// The drawing shows GridSize x GridSize places; scrolled, the first one shows the cell in column
/// `ScrX` and row `ScrY`. Places are numbered as cells are.

/// The place under a position of the screen; 0 outside the grid.
int PlaceUnder(const Project& project, int x, int y);

/// The cell that a place shows; 0 when it lies beyond the grid.
int CellShownAt(const Project& project, const Editor& editor, int place);

/// The last value of the two scroll bars, which start at 1.
int LastScroll(const Project& project);

/// Scrolls to a first column and row, within the bars' range, and removes the data labels.
void ScrollDrawing(const Project& project, Editor& editor, int xOff, int yOff);

/// Where a position of the unscrolled drawing is shown.
ScreenPoint Shown(const Project& project, const Editor& editor, ScreenPoint at);

/// Whether a shown position lies on the grid.
bool IsOnGrid(const Project& project, ScreenPoint shown);

/// A shown position moved to the nearest one on the grid.
ScreenPoint ClampToGrid(const Project& project, ScreenPoint shown);

struct PipePart {
    ScreenPoint from, to;  ///< from the pipe's start towards its end
};

/// The part of a pipe that the scrolled grid shows; nothing when it shows none.
std::optional<PipePart> ShownPart(const Project& project, const Editor& editor,
                                  const PipeRec& pipe);

}  // namespace idrova
