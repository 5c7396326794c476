// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "base/number_text.h"
#include "editor/cell_click.h"
#include "editor/component_insertion.h"
#include "editor/panel_edits.h"
#include "editor/pipe_ends.h"
#include "model/grid.h"
#include "model/pipe_sizes.h"

namespace idrova {

/// A place of the drawing: column and row from 1.
struct Place {
    int column, row;
};

/// Nothing is refused while a sample is made.
class NoBoxes final : public MessageBoxes {
  public:
    Answer Show(const MessageBox& box) override {
        throw std::runtime_error(box.title + ": " + box.text);
    }
};

/// Draws a plant through the plant editor, as a user would. Anything that does not work throws.
class SampleDrawing {
  public:
    SampleDrawing(const ComponentLists& lists, std::string description) : lists_(lists) {
        InitialiseProject(*project_);
        project_->ProjectDescription = std::move(description);
    }

    const Project& Drawn() const { return *project_; }

    /// A pipe in the direction of its flow; later components copy its data into the pieces.
    void Pipe(Place from, Place to, std::string_view nominalSize, float length) {
        Click(from);
        Click(to);
        PipeRec& pipe = project_->Pipes[project_->numtubo];
        SetNominalSize(pipe, SizeNamed(nominalSize));
        pipe.Length = length;
    }

    void Component(CellKind kind, Place place, std::string_view name) {
        ChooseComponentKind(editor_, lists_, kind);
        const auto names = ComponentNames(lists_, kind);
        const auto found = std::ranges::find(names, name);
        if (found == names.end()) throw std::runtime_error("no component " + std::string(name));
        ChooseComponentAt(editor_, lists_, static_cast<int>(found - names.begin()));
        ArmInsertion(*project_, editor_, boxes_);
        Click(place);
    }

    /// Of the piece of pipe that crosses a place.
    void PieceLength(Place place, float length) {
        const CellRec& cell = project_->Cells[CellOf(place)];
        if (cell.Kind != CellKind::Crossed) throw std::runtime_error("no pipe crosses the place");
        project_->Pipes[cell.CrossingPipe].Length = length;
    }

    /// The flow of the last pipe drawn, kg/h.
    void KnownFlow(std::string_view kgPerHour) {
        PipePanel panel = ShowPipeData(*project_, editor_);
        ChooseFlow(*project_, panel, true);
        TypeKgPerHour(*project_, panel, kgPerHour);
    }

    /// bar
    void KnownPressure(Place place, float bar) {
        const int point = LivePointIn(*project_, CellOf(place));
        if (point == 0) throw std::runtime_error("no point in the place");
        project_->Points[point].Pressure = bar * kPascalPerBar;
        project_->PressureUnknown[point] = false;
    }

    /// m, of all pipe ends in a place.
    void Height(Place place, std::int16_t height) {
        const ScreenPoint centre = CellCentre(*project_, CellOf(place));
        for (int i = 1; i <= project_->numtubo; ++i) {
            PipeRec& pipe = project_->Pipes[i];
            if (ScreenPoint{pipe.X1, pipe.Y1} == centre) pipe.Z1 = height;
            if (ScreenPoint{pipe.X2, pipe.Y2} == centre) pipe.Z2 = height;
        }
    }

  private:
    int CellOf(Place place) const { return CellAt(place.column, place.row, project_->GridSize); }

    void Click(Place place) {
        CellClick(*project_, editor_, CellOf(place), MouseButton::Left, boxes_);
    }

    static int SizeNamed(std::string_view name) {
        const auto found = std::ranges::find(NominalSizeNames, name);
        if (found == NominalSizeNames.end()) throw std::runtime_error("no such pipe size");
        return static_cast<int>(found - NominalSizeNames.begin());
    }

    const ComponentLists& lists_;
    std::unique_ptr<Project> project_ = std::make_unique<Project>();
    Editor editor_;
    NoBoxes boxes_;
};

}  // namespace idrova
