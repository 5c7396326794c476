// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/cell_click.h"

#include "editor/component_insertion.h"
#include "editor/grid_view.h"
#include "editor/pipe_insertion.h"
#include "editor/selection.h"

namespace idrova {
namespace {

void LeftClick(Project& project, Editor& editor, int cell, bool goOn, MessageBoxes& boxes) {
    editor.framesEnabled = false;
    editor.selectedIn = 0;
    if (IsArmed(editor)) {
        InsertComponent(project, editor, cell, boxes);
        if (!goOn) AbortInsertion(editor);
    } else {
        InsertPipePoint(project, editor, cell, goOn, boxes);
    }
}

void RightClick(Project& project, Editor& editor, int cell, bool add) {
    editor.framesEnabled = true;
    if (editor.state == InsertState::FirstPoint && !add) return SelectCell(project, editor, cell);
    if (editor.state == InsertState::FirstPoint) ExtendSelection(project, editor, cell);
    AbortInsertion(editor);
    editor.selectedIn = 0;
}

}  // namespace

void CellClick(Project& project, Editor& editor, int place, MouseButton button, MessageBoxes& boxes,
               HeldKey held) {
    const int cell = CellShownAt(project, editor, place);
    if (cell == 0) return;
    HidePressures(editor);
    if (button == MouseButton::Left) {
        LeftClick(project, editor, cell, held == HeldKey::Shift, boxes);
    } else {
        RightClick(project, editor, cell, held == HeldKey::Ctrl);
    }
}

bool AbortByKey(Editor& editor) {
    if (editor.state == InsertState::FirstPoint) {
        const bool several = !editor.alsoSelected.empty();
        editor.alsoSelected.clear();
        return several;
    }
    AbortInsertion(editor);
    HidePressures(editor);
    editor.framesEnabled = true;
    return true;
}

}  // namespace idrova
