// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <sstream>
#include <string>

#include "base/number_text.h"
#include "editor/cell_click.h"
#include "editor/component_insertion.h"
#include "editor/deletion.h"
#include "editor/find_element.h"
#include "editor/grid_view.h"
#include "editor/history.h"
#include "editor/panel_edits.h"
#include "model/drawn_records.h"
#include "model/grid.h"
#include "support/drawing_invariants.h"
#include "support/scripted_boxes.h"

namespace idrova {

/// A project under the editor's hands, and a short script for a user's actions: "L5,3" and "R5,3"
/// click left or right on column 5, row 3; "pump" and "loss" choose and arm a component; "delete"
/// deletes what is selected, "undo" takes a step back; "S5,3" scrolls to that cell; "labels" shows
/// the data labels, "show=flows" those of a kind; "again" fills the panel, "length=12" edits it,
/// "left" leaves the box, "length:12" is what should stand in it; "G5,3" is a left click that goes
/// on, "C5,3" a right one that adds; "selected:3+4" the pipes that should be selected, or the
/// component of a cell ("c105"). Every question is answered with OK.
class Plant {
  public:
    Plant() {
        InitialiseProject(project);
        lists.pumps[1] = {"feed pump", 300000, 0.5F, 100000, 2};
        lists.pumps.count = 1;
        lists.losses[1] = {"gate valve", 0.2F, 0};
        lists.losses.count = 1;
        ChooseComponentKind(editor, lists, CellKind::Pump);
        history.StartAnew(project, editor);
    }

    int Place(int column, int row) const { return CellAt(column, row, project.GridSize); }

    void Click(int column, int row, MouseButton button = MouseButton::Left,
               HeldKey held = HeldKey::None) {
        CellClick(project, editor, Place(column, row), button, boxes, held);
    }

    Plant& Do(const std::string& script) {
        std::istringstream steps(script);
        for (std::string step; steps >> step;) {
            DoStep(step);
            history.Note(project, editor);
        }
        return *this;
    }

    /// The live pipes: "2:3(8,5)-4(8,9)" is pipe 2 from point 3 in column 8, row 5, to point 4.
    std::string Network() const {
        std::string text;
        for (const auto& [number, pipe] : DrawnPipes(project)) {
            text += (text.empty() ? "" : " ") + GeneralText(number) + ":" +
                    EndText(pipe.StartPoint) + "-" + EndText(pipe.EndPoint);
        }
        return text;
    }

    std::string Messages() const {
        std::string text;
        for (const MessageBox& box : boxes.shown) text += (text.empty() ? "" : "; ") + box.text;
        return text;
    }

    std::unique_ptr<Project> owner = std::make_unique<Project>();
    Project& project = *owner;
    Editor editor;
    ComponentLists lists;
    EditHistory history;
    RecordedBoxes boxes;
    PipePanel panel;

    const std::map<std::string, LabelKind> kinds = {
        {"pressures", LabelKind::Pressures},   {"flows", LabelKind::Flows},
        {"velocities", LabelKind::Velocities}, {"losses", LabelKind::Losses},
        {"sizes", LabelKind::Sizes},           {"numbers", LabelKind::Numbers}};
    using Edit = std::function<void(const std::string& text)>;
    const std::map<std::string, Edit> edits = {
        {"flow", [&](auto& t) { ChooseFlow(project, panel, t == "given"); }},
        {"kg/h", [&](auto& t) { TypeKgPerHour(project, panel, t); }},
        {"mc/h", [&](auto& t) { TypeCubicMetresPerHour(project, panel, t, boxes); }},
        {"length", [&](auto& t) { TypeLength(project, panel, t); }},
        {"inner", [&](auto& t) { TypeInnerSize(project, panel, t); }},
        {"outer", [&](auto& t) { TypeOuterSize(project, panel, t); }},
        {"size", [&](auto& t) { ChoosePipeSize(project, panel, ToInt16(ReadNumber(t))); }},
        {"z1", [&](auto& t) { TypeHeight(project, panel, PipeEnd::Start, t); }},
        {"z2", [&](auto& t) { TypeHeight(project, panel, PipeEnd::End, t); }},
        {"end1", [&](auto& t) { ChoosePressure(project, panel, PipeEnd::Start, t == "given"); }},
        {"end2", [&](auto& t) { ChoosePressure(project, panel, PipeEnd::End, t == "given"); }},
        {"p1", [&](auto& t) { TypePressure(project, panel, PipeEnd::Start, t); }},
        {"p2", [&](auto& t) { TypePressure(project, panel, PipeEnd::End, t); }},
        {"leave", [&](auto&) { LeaveBox(project, panel); }},
        {"from2", [&](auto&) { ChooseDirection(project, panel, PipeEnd::End); }},
    };

  private:
    void Arm(CellKind kind) {
        ChooseComponentKind(editor, lists, kind);
        ArmInsertion(project, editor, boxes);
    }

    std::string Shown(const std::string& name) const {
        const std::map<std::string, std::string> texts = {
            {"kg/h", panel.kgPerHour + panel.computedKgPerHour},
            {"mc/h", panel.cubicMetresPerHour + panel.computedCubicMetresPerHour},
            {"flow", panel.flowKnown ? "given" : "unknown"},
            {"length", panel.length},
            {"inner", panel.innerSize},
            {"outer", panel.outerSize},
            {"size", GeneralText(panel.nominalSize)},
            {"z1", panel.start.height},
            {"z2", panel.end.height},
            {"p1", panel.start.given + "/" + panel.start.computed},
            {"p2", panel.end.given + "/" + panel.end.computed},
            {"from2", panel.end.reference ? "yes" : "no"},
            {"selected", Selected()}};
        return texts.at(name);
    }

    std::string Selected() const {
        const int cell = editor.selectedComponent;
        std::string text = cell == 0 ? GeneralText(project.CurrentPipe) : "c" + GeneralText(cell);
        for (const int pipe : editor.alsoSelected) text += "+" + GeneralText(pipe);
        return text;
    }

    void DoStep(const std::string& step) {
        if (step == "pump") return Arm(CellKind::Pump);
        if (step == "loss") return Arm(CellKind::Loss);
        if (step == "delete") return DeleteSelected(project, editor, boxes);
        if (step == "turn") return TurnSelectedPump(project, editor);
        if (step == "escape") return static_cast<void>(AbortByKey(editor));
        if (step == "undo") return history.Undo(project, editor);
        if (step == "redo") return history.Redo(project, editor);
        if (step == "left") return history.EndTyping();
        if (step == "again") return static_cast<void>(panel = ShowPipeData(project, editor));
        if (step == "labels") return static_cast<void>(editor.DataShown = true);
        if (step.starts_with("show=")) return ShowLabels(step.substr(5));
        const auto sign = step.find_first_of("=:,");
        const std::string before = step.substr(0, sign);
        const std::string after = step.substr(sign + 1);
        if (before == "find") return static_cast<void>(FindElement(project, editor, after));
        if (step[sign] == '=') {
            edits.at(before)(after);
        } else if (step[sign] == ':') {
            EXPECT_EQ(Shown(before), after) << step;
        } else {
            At(step[0], std::stoi(before.substr(1)), std::stoi(after));
        }
    }

    void ShowLabels(const std::string& kind) {
        editor.labels = kinds.at(kind);
        editor.DataShown = true;
    }

    void At(char what, int column, int row) {
        if (what == 'S') return ScrollDrawing(project, editor, column, row);
        const HeldKey held = what == 'G'   ? HeldKey::Shift
                             : what == 'C' ? HeldKey::Ctrl
                                           : HeldKey::None;
        const bool right = what == 'R' || what == 'C';
        Click(column, row, right ? MouseButton::Right : MouseButton::Left, held);
    }

    std::string EndText(int point) const {
        const int cell = project.Points[point].Cell;
        return GeneralText(point) + "(" + GeneralText((cell - 1) % project.GridSize + 1) + "," +
               GeneralText((cell - 1) / project.GridSize + 1) + ")";
    }
};

}  // namespace idrova
