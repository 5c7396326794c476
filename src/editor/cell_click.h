// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_boxes.h"
#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

enum class MouseButton { Left = 1, Right = 2 };

/// A press on a place of the drawing (see grid_view.h): the one entrance of every press, by mouse
/// or keyboard. Draws and joins pipes, places components, selects, aborts. A place that shows no
/// cell does nothing. `goOn`: the next pipe begins where this one ends, the component stays armed.
void CellClick(Project& project, Editor& editor, int place, MouseButton button, MessageBoxes& boxes,
               bool goOn = false);

/// The abort of a right click, without one: drops what is begun. Nothing when nothing is.
void AbortByKey(Editor& editor);

}  // namespace idrova
