// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// Selects what touches a cell, and nothing else: the component placed in it, else the pipe of the
/// lowest number that crosses the cell or ends in it. Asked for the same cell again, what follows
/// in that order, and after the last the first; an empty cell selects nothing.
void SelectCell(Project& project, Editor& editor, int cell);

/// Selects a drawn pipe, or nothing (0). A round pipe of nominal size gets that size's diameters
/// in full.
void SelectPipe(Project& project, Editor& editor, int number);

}  // namespace idrova
