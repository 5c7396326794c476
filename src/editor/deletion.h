// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_boxes.h"
#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// Deletes the current pipe, then the selected component, each after its question.
void DeleteSelected(Project& project, Editor& editor, MessageBoxes& boxes);

/// Turns a live pipe into a deleted slot, and with it those of its points that no other pipe uses.
/// A component at its end loses the pipe it stands in and goes too.
void DeletePipe(Project& project, int number);

/// Empties the component of a cell. The cell keeps its kind: a plain connection that holds its two
/// pipe pieces together.
void DeleteComponent(Project& project, int cell);

}  // namespace idrova
