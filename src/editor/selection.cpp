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

/// Those that cross the cell or end in it, by number.
std::vector<int> PipesIn(const Project& project, int cell) {
    std::vector<int> pipes;
    const ScreenPoint centre = CellCentre(project, cell);
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        const bool ends =
            PlaceOf(pipe, PipeEnd::Start) == centre || PlaceOf(pipe, PipeEnd::End) == centre;
        if (ends || RunsThrough(pipe, centre)) pipes.push_back(number);
    }
    return pipes;
}

/// What a cell offers, in the order in which repeated clicks go through it.
std::vector<int> ChoicesIn(const Project& project, int cell) {
    std::vector<int> choices = PipesIn(project, cell);
    if (project.Cells[cell].Placed) choices.insert(choices.begin(), kComponent);
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

void CompleteSize(const Settings& settings, PipeRec& pipe) {
    if (settings.SectionType != Section::Circular) return;
    const int size = NominalSizeOf(pipe.Diameter);
    if (size != 0) SetNominalSize(pipe, size);
}

void AddPipe(Project& project, Editor& editor, int number) {
    auto& others = editor.alsoSelected;
    others.insert(std::ranges::upper_bound(others, number), number);
    CompleteSize(project.settings, project.Pipes[number]);
}

}  // namespace

void SelectPipe(Project& project, Editor& editor, int number) {
    editor.selectedComponent = 0;
    editor.selectedIn = 0;
    editor.alsoSelected.clear();
    project.CurrentPipe = number;
    if (number != 0) CompleteSize(project.settings, project.Pipes[number]);
}

void SelectPipes(Project& project, Editor& editor, const std::vector<int>& numbers) {
    SelectPipe(project, editor, numbers.empty() ? 0 : numbers.front());
    for (std::size_t i = 1; i < numbers.size(); ++i) AddPipe(project, editor, numbers[i]);
}

std::vector<int> SelectedPipes(const Project& project, const Editor& editor) {
    if (project.CurrentPipe == 0) return {};
    std::vector<int> pipes = editor.alsoSelected;
    pipes.insert(pipes.begin(), project.CurrentPipe);
    return pipes;
}

void ExtendSelection(Project& project, Editor& editor, int cell) {
    const std::vector<int> pipes = PipesIn(project, cell);
    const std::vector<int> selected = SelectedPipes(project, editor);
    const auto added = std::ranges::find_if(
        pipes, [&](int pipe) { return std::ranges::find(selected, pipe) == selected.end(); });
    if (added == pipes.end()) {
        for (const int pipe : pipes) Deselect(project, editor, pipe);
    } else if (selected.empty()) {
        SelectPipe(project, editor, *added);
    } else {
        AddPipe(project, editor, *added);
    }
}

void Deselect(Project& project, Editor& editor, int pipe) {
    auto& others = editor.alsoSelected;
    if (pipe == project.CurrentPipe) {
        project.CurrentPipe = others.empty() ? 0 : others.front();
        pipe = project.CurrentPipe;
    }
    std::erase(others, pipe);
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
