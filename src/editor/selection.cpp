// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/selection.h"

#include <algorithm>
#include <vector>

#include "editor/panel_edits.h"
#include "editor/pipe_ends.h"
#include "model/drawn_records.h"
#include "model/pipe_sizes.h"

namespace idrova {
namespace {

constexpr int kComponent = 0;  ///< among the numbers of pipes

/// What a cell offers, in the order in which repeated clicks go through it.
std::vector<int> ChoicesIn(const Project& project, int cell) {
    std::vector<int> choices;
    if (project.Cells[cell].Placed) choices.push_back(kComponent);
    const ScreenPoint centre = CellCentre(project, cell);
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        const bool ends =
            PlaceOf(pipe, PipeEnd::Start) == centre || PlaceOf(pipe, PipeEnd::End) == centre;
        if (ends || RunsThrough(pipe, centre)) choices.push_back(number);
    }
    return choices;
}

/// The choice after the one that is selected, if that was selected in this cell; else the first.
int NextChoice(const Project& project, const Editor& editor, int cell,
               const std::vector<int>& choices) {
    if (editor.selectedIn != cell) return choices.front();
    const int selected = editor.selectedComponent == cell ? kComponent : project.CurrentPipe;
    const auto at = std::ranges::find(choices, selected);
    return at == choices.end() || at + 1 == choices.end() ? choices.front() : at[1];
}

}  // namespace

void SelectPipe(Project& project, Editor& editor, int number) {
    editor.selectedComponent = 0;
    editor.selectedIn = 0;
    project.CurrentPipe = number;
    if (number == 0 || project.settings.SectionType != Section::Circular) return;
    const int size = NominalSizeOf(project.Pipes[number].Diameter);
    if (size != 0) SetNominalSize(project.Pipes[number], size);
}

void SelectCell(Project& project, Editor& editor, int cell) {
    const std::vector<int> choices = ChoicesIn(project, cell);
    const int choice = choices.empty() ? 0 : NextChoice(project, editor, cell, choices);
    SelectPipe(project, editor, choice);
    if (choices.empty()) return;
    if (choice == kComponent) editor.selectedComponent = cell;
    editor.selectedIn = cell;
}

}  // namespace idrova
