// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

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

/// Selects drawn pipes together, the first as the current one.
void SelectPipes(Project& project, Editor& editor, const std::vector<int>& numbers);

/// The current pipe and those selected with it, the current one first.
std::vector<int> SelectedPipes(const Project& project, const Editor& editor);

/// Adds to the selected pipes the first of a cell that is not among them; takes all pipes of the
/// cell out when there is none. A cell without a pipe changes nothing.
void ExtendSelection(Project& project, Editor& editor, int cell);

/// Takes a pipe out of the selected ones, or nothing. After the current one comes the next.
void Deselect(Project& project, Editor& editor, int pipe);

}  // namespace idrova
