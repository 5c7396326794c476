// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/invariants.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "base/number_text.h"
#include "model/grid.h"

namespace idrova {
namespace {

class Faults {
  public:
    /// Notes "`what` `number` must `rule`" when the rule does not hold.
    void Check(bool holds, std::string_view what, std::size_t number, std::string_view rule) {
        if (holds) return;
        faults_.push_back(std::string(what) + " " + GeneralText(static_cast<int>(number)) +
                          " must " + std::string(rule));
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
    constexpr std::string_view rule = "stay unused";
    faults.Check(project.Pipes[0] == PipeRec{}, "pipe", 0, rule);
    faults.Check(project.Points[0] == PointRec{}, "point", 0, rule);
    faults.Check(project.Cells[0] == CellRec{} && !project.CellIsNode[0], "cell", 0, rule);
    faults.Check(project.TableRows[0] == TableRowRec{}, "table row", 0, rule);
}

bool LiesIn(const Project& project, int point, ScreenPoint place) {
    const PointRec& record = project.Points[static_cast<std::size_t>(point)];
    return ScreenPoint{record.X, record.Y} == place;
}

/// Where a pipe runs, given that its points are there.
void CheckCourse(const Project& project, std::size_t slot, Faults& faults) {
    const PipeRec& pipe = project.Pipes[slot];
    const ScreenPoint start{pipe.X1, pipe.Y1};
    const ScreenPoint end{pipe.X2, pipe.Y2};
    faults.Check(LiesIn(project, pipe.StartPoint, start) && LiesIn(project, pipe.EndPoint, end),
                 "pipe", slot, "end where its points lie");
    faults.Check((start.x == end.x) != (start.y == end.y), "pipe", slot,
                 "run along a row or a column, from one cell to another");
}

void CheckPipe(const Project& project, std::size_t slot, Faults& faults) {
    const PipeRec& pipe = project.Pipes[slot];
    const auto check = [&](bool holds, std::string_view rule) {
        faults.Check(holds, "pipe", slot, rule);
        return holds;
    };
    check(AreFinite({pipe.FlowRate, pipe.Length, pipe.Diameter, pipe.OuterSize, pipe.LossSum}),
          "have finite numbers");
    check(pipe.IsEnd(pipe.FlowFromPoint), "count its flow from an end");
    if (!pipe.IsDrawn()) {
        check(IsAllDeleted(pipe), "be deleted as a whole");
    } else if (check(IsLivePoint(project, pipe.StartPoint) && IsLivePoint(project, pipe.EndPoint),
                     "end in live points")) {
        CheckCourse(project, slot, faults);
    }
}

void CheckPoint(const Project& project, std::size_t slot, Faults& faults) {
    const PointRec& point = project.Points[slot];
    faults.Check(AreFinite({point.Pressure}), "point", slot, "have finite numbers");
    if (!point.IsDrawn()) {
        faults.Check(point.X == kDeleted && point.Cell == 0, "point", slot,
                     "be deleted as a whole");
        return;
    }
    const bool inCell = IsCellCentre(project, point.X, point.Y) &&
                        CellFromPoint(project, point.X, point.Y) == point.Cell;
    faults.Check(inCell, "point", slot, "lie in the centre of its cell");
    faults.Check(!inCell || project.CellIsNode[static_cast<std::size_t>(point.Cell)], "point", slot,
                 "mark its cell as a node");
}

bool IsCrossedByLivePipe(const Project& project, const CellRec& cell) {
    const bool inRange = cell.CrossingPipe >= 1 && cell.CrossingPipe <= project.numtubo;
    return inRange && project.Pipes[static_cast<std::size_t>(cell.CrossingPipe)].IsDrawn();
}

void CheckCell(const Project& project, std::size_t slot, Faults& faults) {
    const CellRec& cell = project.Cells[slot];
    if (cell.Kind == CellKind::Empty && !cell.Placed) return;
    const auto check = [&](bool holds, std::string_view rule) {
        faults.Check(holds, "cell", slot, rule);
    };
    check(slot <= static_cast<std::size_t>(project.CellCount()), "lie within the grid");
    check(AreFinite({cell.Param1, cell.Param2, cell.PumpConstant, cell.Result, cell.MinFlow,
                     cell.MaxFlow}),
          "have finite numbers");
    const bool crossed = cell.Kind == CellKind::Crossed && IsCrossedByLivePipe(project, cell);
    check(cell.IsComponent() || (crossed && !cell.Placed),
          "hold a component, or be crossed by a live pipe");
}

void CheckTableRow(const TableRowRec& row, std::size_t slot, Faults& faults) {
    faults.Check(AreFinite({row.StartPressure, row.EndPressure, row.RowDiameter, row.RowLength,
                            row.RowFlowRate, row.RowZ1, row.RowZ2, row.RowLossSum}),
                 "table row", slot, "have finite numbers");
    for (const GivenColumn& column : kGivenColumns) {
        faults.Check(row.*column.given || row.*column.value == 0, "table row", slot,
                     "have its values marked as given");
    }
}

}  // namespace

std::vector<std::string> BrokenInvariants(const Project& project) {
    if (!CountsAreInRange(project)) return {"the counts must be within the capacities"};
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
