// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "base/message_boxes.h"
#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// Deletes the current pipe, then the selected component, each after its question; other selected
/// pipes stay and stay selected. `showRemoval` is
/// called before a question, with all whole, so that the drawing can show what it is about
/// (`Editor::removal`). A component at the end of a deleted pipe loses the pipe it stands in and
/// goes too.
void DeleteSelected(
    Project& project, Editor& editor, MessageBoxes& boxes,
    const std::function<void()>& showRemoval = [] {});

}  // namespace idrova
