// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <sstream>
#include <string>

#include "base/number_text.h"
#include "editor/cell_click.h"
#include "editor/component_insertion.h"
#include "editor/deletion.h"
#include "editor/invariants.h"
#include "model/grid.h"
#include "support/scripted_boxes.h"

namespace idrova {

/// A project under the editor's hands, and a short script for a user's actions: "L5,3" and "R5,3"
/// click left or right on column 5, row 3; "pump" and "loss" choose and arm a component; "delete"
/// deletes what is selected. Every question is answered with OK.
class Plant {
  public:
    Plant() {
        InitialiseProject(project);
        lists.pumps[1] = {"feed pump", 300000, 0.5F, 100000, 2};
        lists.pumps.count = 1;
        lists.losses[1] = {"gate valve", 0.2F, 0};
        lists.losses.count = 1;
        ChooseComponentKind(editor, lists, CellKind::Pump);
    }

    int Place(int column, int row) const { return CellAt(column, row, project.GridSize); }

    void Click(int column, int row, MouseButton button = MouseButton::Left) {
        CellClick(project, editor, Place(column, row), button, boxes);
    }

    void Draw(int column1, int row1, int column2, int row2) {
        Click(column1, row1);
        Click(column2, row2);
    }

    Plant& Do(const std::string& script) {
        std::istringstream steps(script);
        for (std::string step; steps >> step;) DoStep(step);
        return *this;
    }

    /// The live pipes: "2:3(8,5)-4(8,9)" is pipe 2 from point 3 in column 8, row 5, to point 4.
    std::string Network() const {
        std::string text;
        for (int i = 1; i <= project.numtubo; ++i) {
            const PipeRec& pipe = project.Pipes[i];
            if (!pipe.IsDrawn()) continue;
            text += (text.empty() ? "" : " ") + GeneralText(i) + ":" + EndText(pipe.StartPoint) +
                    "-" + EndText(pipe.EndPoint);
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
    RecordedBoxes boxes;

  private:
    void Arm(CellKind kind) {
        ChooseComponentKind(editor, lists, kind);
        ArmInsertion(editor, boxes);
    }

    void DoStep(const std::string& step) {
        if (step == "pump") return Arm(CellKind::Pump);
        if (step == "loss") return Arm(CellKind::Loss);
        if (step == "delete") return DeleteSelected(project, editor, boxes);
        const auto comma = step.find(',');
        const int column = std::stoi(step.substr(1));
        const int row = std::stoi(step.substr(comma + 1));
        Click(column, row, step[0] == 'L' ? MouseButton::Left : MouseButton::Right);
    }

    std::string EndText(int point) const {
        const int cell = project.Points[point].Cell;
        return GeneralText(point) + "(" + GeneralText((cell - 1) % project.GridSize + 1) + "," +
               GeneralText((cell - 1) / project.GridSize + 1) + ")";
    }
};

}  // namespace idrova
