// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editor_state.h"

namespace idrova {

bool IsArmed(const Editor& editor) {
    return editor.state == InsertState::Pump || editor.state == InsertState::Loss;
}

void HidePressures(Editor& editor) {
    if (editor.labels == LabelKind::Pressures) editor.DataShown = false;
}

std::array<std::string_view, 4> HintLines(const Editor& editor) {
    switch (editor.state) {
        case InsertState::EndPoint:
            return {"left click on a cell:", "end point of the pipe",
                    "right click:", "abort pipe insertion"};
        case InsertState::Pump:
        case InsertState::Loss:
            return {"left click on a pipe:", "insert selected component",
                    "right click:", "abort component insertion"};
        case InsertState::FirstPoint:
            break;
    }
    return {"left click on a cell:", "first point of a pipe",
            "right click on a pipe:", "select a pipe, show and enable to edit pipe data"};
}

void AbortInsertion(Editor& editor) {
    editor.state = InsertState::FirstPoint;
    editor.firstCell = 0;
}

void RedrawProject(Project& project, Editor& editor) {
    AbortInsertion(editor);
    editor.selectedComponent = 0;
    editor.selectedIn = 0;
    editor.alsoSelected.clear();
    editor.DataShown = false;
    editor.ScrX = 1;
    editor.ScrY = 1;
    RebuildPipeCells(project);
}

}  // namespace idrova
