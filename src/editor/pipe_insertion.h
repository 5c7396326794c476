// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "base/message_boxes.h"
#include "editor/editor_state.h"
#include "model/grid.h"
#include "model/project.h"

namespace idrova {

/// A left click on a cell of the grid: records the first end of a pipe, or completes the pipe with
/// its second end. What is refused is told in a box and leaves the network as it was; at the second
/// end the pipe begun is then dropped. `goOn`: the end of a completed pipe begins the next.
void InsertPipePoint(Project& project, Editor& editor, int cell, bool goOn, MessageBoxes& boxes);

/// The pipe that is begun, as it would end in a cell.
struct BegunPipe {
    ScreenPoint from, to;
    int cells = 0;         ///< its length
    bool refused = false;  ///< it cannot end there
};

/// Nothing when none is begun, in its first cell, or beside the grid (cell 0).
std::optional<BegunPipe> PipeTo(const Project& project, const Editor& editor, int cell);

}  // namespace idrova
