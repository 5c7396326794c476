// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "hydraulics/note.h"

namespace idrova {

struct Program;

/// A pipe, a point or a component, by number or cell, of the drawing; of the table the pipes alone.
struct Element {
    NoteOn kind = NoteOn::Network;
    int number = 0;
};

/// True where the working mode shows such elements: the drawing all, the table pipes.
bool IsShownBeside(const Program& program, NoteOn kind);

/// Selects it in the drawing, scrolled so that it is seen, or its row in the table. A point is
/// shown by a pipe that ends there. Nothing happens when it is not there.
void SelectElement(Program& program, const Element& element);

/// Selects pipes of the drawing together; in the other modes nothing.
void SelectPipes(Program& program, const std::vector<int>& numbers);

/// The numbers of the pipes that are selected together, ascending.
std::vector<int> SelectedPipes(const Program& program);

/// The number of the selected pipe or component, or of the point that the selected pipe starts in;
/// 0 when none is selected.
int SelectedNumber(const Program& program, NoteOn kind);

/// Also true of the point in which the selected pipe ends.
bool IsSelected(const Program& program, const Element& element);

}  // namespace idrova
