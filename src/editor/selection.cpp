// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/selection.h"

#include "editor/panel_edits.h"
#include "model/pipe_sizes.h"

namespace idrova {
namespace {

void SelectPipe(Project& project, Editor& editor, int number) {
    project.CurrentPipe = number;
    editor.pipeSelected = true;
    if (project.settings.SectionType != Section::Circular) return;
    const int size = NominalSizeOf(project.Pipes[number].Diameter);
    if (size != 0) SetNominalSize(project.Pipes[number], size);
}

}  // namespace

void SelectCell(Project& project, Editor& editor, int cell) {
    project.CurrentPipe = 0;
    editor.pipeSelected = false;
    editor.selectedComponent = 0;
    const CellRec& record = project.Cells[cell];
    if (record.Kind == CellKind::Crossed) {
        SelectPipe(project, editor, record.CrossingPipe);
    } else if (record.Placed) {
        editor.selectedComponent = cell;
    }
}

}  // namespace idrova
