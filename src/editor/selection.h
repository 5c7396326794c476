// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// Selects the pipe that crosses a cell, or the component placed in it, and nothing else; an empty
/// cell selects nothing. A round pipe of nominal size gets that size's diameters in full.
void SelectCell(Project& project, Editor& editor, int cell);

}  // namespace idrova
