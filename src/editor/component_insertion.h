// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_boxes.h"
#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// `Combo1`: chooses the kind and with it the first component of its list. An armed insertion goes
/// on with the new kind; it is aborted when the list is empty.
void ChooseComponentKind(Editor& editor, const ComponentLists& lists, CellKind kind);

/// `Combo3`: chooses the component in a list position (from 0); other positions change nothing.
void ChooseComponentAt(Editor& editor, const ComponentLists& lists, int position);

/// The lists were loaded again: finds the chosen component in them, one with its name if its values
/// changed; when it is gone, chooses the first and aborts an armed insertion.
void RefreshComponentChoice(Editor& editor, const ComponentLists& lists);

/// Whether the panel's "Components" frame is open: a left click locks it, like the other frames,
/// only while no pipe is drawn that could take one.
bool MayPlaceComponents(const Project& project, const Editor& editor);

/// `Command3`: the next left click places the chosen component. Told in a box when none is chosen.
/// When another one is selected on the drawing, a box offers to replace that in its place.
void ArmInsertion(Project& project, Editor& editor, MessageBoxes& boxes);

/// Places the chosen component in a cell of a pipe and cuts the pipe there; a cell whose component
/// was deleted takes it without a cut. What is refused is told in a box and changes nothing.
void InsertComponent(Project& project, Editor& editor, int cell, MessageBoxes& boxes);

/// "Roate pump": the selected pump, if one is, delivers the other way round.
void TurnSelectedPump(Project& project, const Editor& editor);

}  // namespace idrova
