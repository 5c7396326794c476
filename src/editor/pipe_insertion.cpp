// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/pipe_insertion.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>

#include "editor/messages.h"
#include "editor/pipe_ends.h"
#include "model/drawn_records.h"

namespace idrova {
namespace {

/// Number of pipes that a new pipe with these ends cuts in two, counted once for each end.
int CountSplits(const Project& project, ScreenPoint first, ScreenPoint second) {
    int splits = 0;
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        splits += static_cast<int>(RunsThrough(pipe, first));
        splits += static_cast<int>(RunsThrough(pipe, second));
    }
    return splits;
}

std::optional<FixedMessage> CapacityRefusal(const Project& project, int first, int second) {
    const int splits =
        CountSplits(project, CellCentre(project, first), CellCentre(project, second));
    if (1 + splits > FreePipes(project)) return kTooManyPipes;
    int points = 0;
    for (const int cell : {first, second}) {
        if (LivePointIn(project, cell) == 0) ++points;
    }
    if (points > FreePoints(project)) return kTooManyPoints;
    return std::nullopt;
}

std::optional<FixedMessage> FirstPointRefusal(const Project& project, int cell) {
    if (FreePipes(project) == 0) return kTooManyPipes;
    if (project.Cells[cell].Placed) return kCellOccupied;
    return std::nullopt;
}

std::optional<FixedMessage> EndPointRefusal(const Project& project, int first, int cell) {
    if (project.Cells[cell].Placed) return kCellOccupied;
    if (cell == first) return kLengthZero;
    const ScreenPoint from = CellCentre(project, first);
    const ScreenPoint to = CellCentre(project, cell);
    if (from.x != to.x && from.y != to.y) return kNotOrthogonal;
    return CapacityRefusal(project, first, cell);
}

/// The point of a new pipe's end. The cell of a deleted component becomes a plain node.
int PointFor(Project& project, int cell) {
    if (project.Cells[cell].IsComponent()) project.Cells[cell] = CellRec();
    const int there = JoinPoints(project, cell);
    return there != 0 ? there : AddPoint(project, cell);
}

struct Split {
    int pipe = 0;   ///< cut in two
    int point = 0;  ///< where
};

/// The first pipe that an end of pipe `number` lies inside of; of its ends the near one first.
std::optional<Split> FindSplit(const Project& project, int number) {
    const PipeRec& pipe = project.Pipes[number];
    const PipeEnd far = FarEnd(pipe);
    for (const auto& [crossed, other] : DrawnPipes(project)) {
        for (const PipeEnd end : {Other(far), far}) {
            if (RunsThrough(other, PlaceOf(pipe, end))) return Split{crossed, PointAt(pipe, end)};
        }
    }
    return std::nullopt;
}

/// The first half keeps the number and the data; the appended half has the second end and no data.
int SplitPipe(Project& project, const Split& split) {
    const int number = AddPipe(project);
    PipeRec& half = project.Pipes[number];
    PipeRec& pipe = project.Pipes[split.pipe];
    PutEnd(project, half, PipeEnd::Start, split.point);
    PutEnd(project, half, PipeEnd::End, pipe.EndPoint);
    PutEnd(project, pipe, PipeEnd::End, split.point);
    return number;
}

/// Returns the pipe that was added last: the last half, else the new pipe itself.
int SplitCrossedPipes(Project& project, int number) {
    int last = number;
    while (const std::optional<Split> split = FindSplit(project, number)) {
        last = SplitPipe(project, *split);
    }
    return last;
}

void CompletePipe(Project& project, int first, int second) {
    const int number = AddPipe(project);
    PipeRec& pipe = project.Pipes[number];
    PutEnd(project, pipe, PipeEnd::Start, PointFor(project, first));
    PutEnd(project, pipe, PipeEnd::End, PointFor(project, second));
    project.CurrentPipe = SplitCrossedPipes(project, number);
    RebuildPipeCells(project);
}

void BeginPipe(Editor& editor, int cell) {
    editor.state = InsertState::EndPoint;
    editor.firstCell = cell;
}

}  // namespace

void InsertPipePoint(Project& project, Editor& editor, int cell, bool goOn, MessageBoxes& boxes) {
    if (editor.state != InsertState::EndPoint) {
        if (const auto refusal = FirstPointRefusal(project, cell)) {
            boxes.Show(*refusal);
            return;
        }
        BeginPipe(editor, cell);
        return;
    }
    const int first = editor.firstCell;
    AbortInsertion(editor);
    if (const auto refusal = EndPointRefusal(project, first, cell)) {
        boxes.Show(*refusal);
        return;
    }
    CompletePipe(project, first, cell);
    editor.selectedComponent = 0;
    editor.alsoSelected.clear();
    if (goOn && !FirstPointRefusal(project, cell)) BeginPipe(editor, cell);
}

std::optional<BegunPipe> PipeTo(const Project& project, const Editor& editor, int cell) {
    const bool begun = editor.state == InsertState::EndPoint;
    if (!begun || cell == 0 || cell == editor.firstCell) return std::nullopt;
    const int size = project.GridSize;
    const auto apart = [&](int one, int other) { return std::abs(one - other); };
    const int columns = apart((cell - 1) % size, (editor.firstCell - 1) % size);
    const int rows = apart((cell - 1) / size, (editor.firstCell - 1) / size);
    return BegunPipe{CellCentre(project, editor.firstCell), CellCentre(project, cell),
                     std::max(columns, rows),
                     EndPointRefusal(project, editor.firstCell, cell).has_value()};
}

}  // namespace idrova
