// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/component_insertion.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <utility>

#include "base/number_text.h"
#include "editor/messages.h"
#include "editor/pipe_ends.h"
#include "model/drawn_records.h"

namespace idrova {
namespace {

/// The pipe whose cut or joint the component of a cell stands on: the one that crosses the cell, or
/// the first that ends there.
int PipeAtCell(const Project& project, int cell) {
    const CellRec& record = project.Cells[cell];
    if (record.Kind == CellKind::Crossed) return record.CrossingPipe;
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        for (const int point : {pipe.StartPoint, pipe.EndPoint}) {
            if (project.Points[point].Cell == cell) return number;
        }
    }
    return 0;
}

bool IsPlainConnection(const CellRec& cell) {
    return cell.IsComponent() && !cell.Placed;
}

std::optional<FixedMessage> Refusal(const Project& project, int cell) {
    if (project.Cells[cell].Kind != CellKind::Crossed) return kNotInPipe;
    if (LivePointIn(project, cell) != 0) return kOnExtreme;
    if (FreePipes(project) == 0) return kTooManyPipes;
    if (FreePoints(project) < 2) return kTooManyPoints;
    return std::nullopt;
}

std::int16_t& HeightOf(PipeRec& pipe, PipeEnd end) {
    return end == PipeEnd::Start ? pipe.Z1 : pipe.Z2;
}

/// Height of a straight pipe in a place between its ends, in whole metres.
std::int16_t HeightAt(const PipeRec& pipe, ScreenPoint place) {
    const double whole = std::abs(pipe.X2 - pipe.X1) + std::abs(pipe.Y2 - pipe.Y1);
    const double part = std::abs(place.x - pipe.X1) + std::abs(place.y - pipe.Y1);
    return ToInt16(pipe.Z1 + (pipe.Z2 - pipe.Z1) * part / whole);
}

/// The pipe keeps its near end and ends in the cell; the appended piece goes on from there to the
/// far end. Where they meet they have the height between the two ends.
void CutPipe(Project& project, int number, int cell) {
    PipeRec& piece = project.Pipes[AddPipe(project)];
    PipeRec& pipe = project.Pipes[number];
    const PipeEnd far = FarEnd(pipe);
    const int farPoint = PointAt(pipe, far);
    const std::int16_t height = HeightAt(pipe, CellCentre(project, cell));
    piece.Z1 = height;
    piece.Z2 = std::exchange(HeightOf(pipe, far), height);
    PutEnd(project, pipe, far, AddPoint(project, cell));
    PutEnd(project, piece, PipeEnd::Start, AddPoint(project, cell));
    PutEnd(project, piece, PipeEnd::End, farPoint);
    piece.FlowRate = pipe.FlowRate;
    piece.Length = pipe.Length;
    piece.Diameter = pipe.Diameter;
}

CellRec ComponentRecord(const ComponentChoice& choice, CellKind kind, const PipeRec& pipe) {
    CellRec cell;
    cell.Name = choice.CompName;
    cell.Placed = true;
    cell.Param1 = ToSingle(choice.CompValue1);
    cell.Param2 = ToSingle(choice.CompValue2);
    cell.Kind = kind;
    if (kind == CellKind::Loss) return cell;
    cell.PumpConstant = ToSingle(choice.CompValue3);
    cell.MinFlow = choice.ChosenPump.qMin;
    cell.MaxFlow = choice.ChosenPump.qMax;
    const bool horizontal = pipe.Y1 == pipe.Y2;
    cell.Direction = horizontal ? Delivery::Right : Delivery::Down;
    cell.PipeAxis = horizontal ? Axis::Horizontal : Axis::Vertical;
    return cell;
}

InsertState ArmedFor(CellKind kind) {
    return kind == CellKind::Pump ? InsertState::Pump : InsertState::Loss;
}

/// Whether choosing this position would choose what is chosen already: names may be equal.
bool ChoiceStaysAt(const Editor& editor, const ComponentLists& lists, int position) {
    if (position < 0 || position >= lists.CompCount(editor.componentKind)) return false;
    ComponentChoice choice = editor.choice;
    ChooseComponent(choice, lists, editor.componentKind, position);
    return choice == editor.choice;
}

/// A pump whose flow rates are equal has no curve.
bool RefusePump(const Editor& editor, MessageBoxes& boxes) {
    const bool pump = editor.componentKind == CellKind::Pump;
    if (!pump || CurveOf(editor.choice.ChosenPump)) return false;
    boxes.Show(kPumpWithoutCurve);
    return true;
}

bool IsToReplace(const Project& project, const Editor& editor, MessageBoxes& boxes) {
    const CellRec& selected = project.Cells[editor.selectedComponent];
    if (!selected.Placed) return false;
    const bool another =
        selected.Kind != editor.componentKind || selected.Name != editor.choice.CompName;
    return another && boxes.Show(AskReplace(selected.Name, editor.choice.CompName)) == Answer::Ok;
}

/// A pump that takes the place of another delivers the same way.
void Replace(Project& project, const Editor& editor, MessageBoxes& boxes) {
    if (RefusePump(editor, boxes)) return;
    const int cell = editor.selectedComponent;
    CellRec& record = project.Cells[cell];
    const CellRec before =
        std::exchange(record, ComponentRecord(editor.choice, editor.componentKind,
                                              project.Pipes[PipeAtCell(project, cell)]));
    if (before.Kind == CellKind::Pump && record.Kind == CellKind::Pump) {
        record.Direction = before.Direction;
    }
}

}  // namespace

void ChooseComponentKind(Editor& editor, const ComponentLists& lists, CellKind kind) {
    const bool armed = IsArmed(editor);
    editor.componentKind = kind;
    editor.componentPosition = lists.CompCount(kind) > 0 ? 0 : -1;
    ChooseComponent(editor.choice, lists, kind, editor.componentPosition);
    if (!armed) return;
    AbortInsertion(editor);
    if (editor.componentPosition < 0) return;
    editor.state = ArmedFor(kind);
}

void ChooseComponentAt(Editor& editor, const ComponentLists& lists, int position) {
    if (position < 0 || position >= lists.CompCount(editor.componentKind)) return;
    editor.componentPosition = position;
    ChooseComponent(editor.choice, lists, editor.componentKind, position);
}

void RefreshComponentChoice(Editor& editor, const ComponentLists& lists) {
    if (ChoiceStaysAt(editor, lists, editor.componentPosition)) return;
    for (int position = 0; position < lists.CompCount(editor.componentKind); ++position) {
        if (!ChoiceStaysAt(editor, lists, position)) continue;
        editor.componentPosition = position;
        return;
    }
    const auto names = ComponentNames(lists, editor.componentKind);
    const auto chosen = std::ranges::find(names, editor.choice.CompName);
    if (chosen == names.end()) {
        if (IsArmed(editor)) AbortInsertion(editor);
        ChooseComponentKind(editor, lists, editor.componentKind);
    } else {
        ChooseComponentAt(editor, lists, static_cast<int>(chosen - names.begin()));
    }
}

bool MayPlaceComponents(const Project& project, const Editor& editor) {
    return editor.framesEnabled || FreePipes(project) < kMaxPipes;
}

void ArmInsertion(Project& project, Editor& editor, MessageBoxes& boxes) {
    HidePressures(editor);
    if (editor.componentPosition < 0) {
        boxes.Show(kSelectComponent);
        return;
    }
    AbortInsertion(editor);
    if (IsToReplace(project, editor, boxes)) return Replace(project, editor, boxes);
    editor.state = ArmedFor(editor.componentKind);
}

void TurnSelectedPump(Project& project, const Editor& editor) {
    CellRec& cell = project.Cells[editor.selectedComponent];
    if (!cell.Placed || cell.Kind != CellKind::Pump) return;
    constexpr std::array opposite = {Delivery::None, Delivery::Left, Delivery::Up, Delivery::Right,
                                     Delivery::Down};
    cell.Direction = opposite[static_cast<std::size_t>(cell.Direction)];
}

void InsertComponent(Project& project, Editor& editor, int cell, MessageBoxes& boxes) {
    if (RefusePump(editor, boxes)) return;
    CellRec& record = project.Cells[cell];
    const int pipe = PipeAtCell(project, cell);
    if (!IsPlainConnection(record)) {
        if (const auto refusal = Refusal(project, cell)) {
            boxes.Show(*refusal);
            return;
        }
        CutPipe(project, pipe, cell);
    }
    record = ComponentRecord(editor.choice, editor.componentKind, project.Pipes[pipe]);
    RebuildPipeCells(project);
}

}  // namespace idrova
