// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/invariants.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "base/number_text.h"
#include "model/grid.h"
#include "model/project_keys.h"

namespace idrova {
namespace {

class Faults {
  public:
    /// Notes "`table`(`slot`): `rule`" when the rule does not hold.
    void Check(bool holds, std::string_view table, std::size_t slot, std::string_view rule) {
        if (holds) return;
        faults_.push_back(std::string(table) + "(" + GeneralText(static_cast<int>(slot)) +
                          "): " + std::string(rule));
    }

    std::vector<std::string> Take() { return std::move(faults_); }

  private:
    std::vector<std::string> faults_;
};

bool AreFinite(std::initializer_list<float> values) {
    return std::all_of(values.begin(), values.end(), [](float x) { return std::isfinite(x); });
}

bool IsCellCentre(const Project& project, int x, int y) {
    const int cell = CellFromPoint(project, x, y);
    return cell >= 1 && cell <= project.CellCount() &&
           CellCentre(project, cell) == ScreenPoint{x, y};
}

bool IsLivePoint(const Project& project, int point) {
    return point >= 1 && point <= project.npres &&
           project.Points[static_cast<std::size_t>(point)].IsDrawn();
}

bool IsAllDeleted(const PipeRec& pipe) {
    const auto fields = {pipe.X1, pipe.X2, pipe.Y1, pipe.Y2, pipe.StartPoint, pipe.EndPoint};
    return std::all_of(fields.begin(), fields.end(), [](int field) { return field == kDeleted; });
}

bool CountsAreInRange(const Project& project) {
    const auto within = [](int count, int capacity) { return count >= 0 && count <= capacity; };
    return within(project.numtubo, kMaxPipes) && within(project.npres, kMaxPoints) &&
           within(project.numins, kMaxTableRows) && within(project.CurrentPipe, project.numtubo) &&
           project.GridSize >= 1 && project.GridSize <= kMaxGridSize;
}

void CheckUnusedSlots(const Project& project, Faults& faults) {
    faults.Check(project.Pipes[0] == PipeRec{}, "Pipes", 0, "never used");
    faults.Check(project.Points[0] == PointRec{}, "Points", 0, "never used");
    faults.Check(project.Cells[0] == CellRec{} && !project.CellIsNode[0], "Cells", 0, "never used");
    faults.Check(project.TableRows[0] == TableRowRec{}, "TableRows", 0, "never used");
}

void CheckPipe(const Project& project, std::size_t slot, Faults& faults) {
    const PipeRec& pipe = project.Pipes[slot];
    const auto check = [&](bool holds, std::string_view rule) {
        faults.Check(holds, "Pipes", slot, rule);
    };
    check(AreFinite({pipe.FlowRate, pipe.Length, pipe.Diameter, pipe.OuterSize}), "finite numbers");
    check(pipe.IsEnd(pipe.FlowFromPoint), "the flow is counted from an end");
    if (!pipe.IsDrawn()) return check(IsAllDeleted(pipe), "deleted as a whole");
    check(IsLivePoint(project, pipe.StartPoint) && IsLivePoint(project, pipe.EndPoint),
          "ends in live points");
    check(IsCellCentre(project, pipe.X1, pipe.Y1) && IsCellCentre(project, pipe.X2, pipe.Y2),
          "ends in cell centres");
}

void CheckPoint(const Project& project, std::size_t slot, Faults& faults) {
    const PointRec& point = project.Points[slot];
    faults.Check(AreFinite({point.Pressure}), "Points", slot, "finite numbers");
    if (!point.IsDrawn()) {
        faults.Check(point.X == kDeleted && point.Cell == 0, "Points", slot, "deleted as a whole");
        return;
    }
    faults.Check(IsCellCentre(project, point.X, point.Y) &&
                     CellFromPoint(project, point.X, point.Y) == point.Cell,
                 "Points", slot, "lies in the centre of its cell");
}

bool IsCrossedByLivePipe(const Project& project, const CellRec& cell) {
    const bool inRange = cell.Param1 >= 1 && cell.Param1 <= static_cast<float>(project.numtubo);
    return inRange && project.Pipes[static_cast<std::size_t>(cell.Param1)].IsDrawn();
}

void CheckCell(const Project& project, std::size_t slot, Faults& faults) {
    const CellRec& cell = project.Cells[slot];
    if (cell.Kind == CellKind::Empty && !cell.Placed) return;
    const auto check = [&](bool holds, std::string_view rule) {
        faults.Check(holds, "Cells", slot, rule);
    };
    check(slot <= static_cast<std::size_t>(project.CellCount()), "within the grid");
    check(AreFinite({cell.Param1, cell.Param2, cell.PumpConstant, cell.Direction, cell.PipeAxis,
                     cell.Result, cell.MinFlow, cell.MaxFlow}),
          "finite numbers");
    const bool crossed = cell.Kind == CellKind::Crossed && IsCrossedByLivePipe(project, cell);
    check(cell.IsComponent() || (crossed && !cell.Placed),
          "a component, or crossed by a live pipe");
}

void CheckTableRow(const TableRowRec& row, std::size_t slot, Faults& faults) {
    faults.Check(AreFinite({row.StartPressure, row.EndPressure, row.RowDiameter, row.RowLength,
                            row.RowFlowRate, row.RowZ1, row.RowZ2}),
                 "TableRows", slot, "finite numbers");
    for (const GivenColumn& column : kGivenColumns) {
        faults.Check(row.*column.given || row.*column.value == 0, "TableRows", slot,
                     "a value that is not 0 is given");
    }
}

}  // namespace

std::vector<std::string> BrokenInvariants(const Project& project) {
    if (!CountsAreInRange(project)) return {"a count is out of range"};
    Faults faults;
    CheckUnusedSlots(project, faults);
    for (int i = 1; i <= project.numtubo; ++i) {
        CheckPipe(project, static_cast<std::size_t>(i), faults);
    }
    for (int i = 1; i <= project.npres; ++i) {
        CheckPoint(project, static_cast<std::size_t>(i), faults);
    }
    for (std::size_t i = 1; i <= kMaxCells; ++i) CheckCell(project, i, faults);
    for (std::size_t i = kFirstTableRow; i <= kTableSlots; ++i) {
        CheckTableRow(project.TableRows[i], i, faults);
    }
    return faults.Take();
}

}  // namespace idrova
