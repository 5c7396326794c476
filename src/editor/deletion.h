// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_boxes.h"
#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// Deletes the current pipe, then the selected component, each after its question.
void DeleteSelected(Project& project, Editor& editor, MessageBoxes& boxes);

}  // namespace idrova
