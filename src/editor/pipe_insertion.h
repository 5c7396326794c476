// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_boxes.h"
#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// A left click on a cell of the grid: records the first end of a pipe, or completes the pipe with
/// its second end. What is refused is told in a box and leaves the network as it was; at the second
/// end the pipe begun is then dropped.
void InsertPipePoint(Project& project, Editor& editor, int cell, MessageBoxes& boxes);

}  // namespace idrova
