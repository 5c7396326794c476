// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_boxes.h"
#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

enum class MouseButton { Left = 1, Right = 2 };

/// The key that is held at a press.
enum class HeldKey {
    None,
    Shift,  ///< left: the next pipe begins where this one ends, the component stays armed
    Ctrl,   ///< right: a pipe is added to those selected, or taken out of them
};

/// A press on a place of the drawing (see grid_view.h): the one entrance of every press, by mouse
/// or keyboard. Draws and joins pipes, places components, selects, aborts. A place that shows no
/// cell does nothing.
void CellClick(Project& project, Editor& editor, int place, MouseButton button, MessageBoxes& boxes,
               HeldKey held = HeldKey::None);

/// The abort of a right click, without one: drops what is begun or, when nothing is, the pipes that
/// are selected beside the current one. False when there was neither.
bool AbortByKey(Editor& editor);

}  // namespace idrova
