// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_network.h"

#include <algorithm>
#include <span>

#include "base/number_text.h"
#include "table/messages.h"

namespace idrova {
namespace {

using Rows = std::span<const TableRowRec>;

/// Rows up to the first one that misses a point.
int CountListedRows(const Project& project) {
    int row = kFirstTableRow;
    while (row <= kLastTableRow) {
        const TableRowRec& data = project.TableRows[row];
        if (data.StartPoint == 0 || data.EndPoint == 0) break;
        ++row;
    }
    return row - kFirstTableRow;
}

Rows ListedRows(const Project& project) {
    return Rows(project.TableRows).subspan(kFirstTableRow, project.numins);
}

bool Disagree(const TableRowRec& one, const TableRowRec& other) {
    return (one.StartPoint == other.StartPoint && one.StartPressure != other.StartPressure) ||
           (one.EndPoint == other.EndPoint && one.EndPressure != other.EndPressure);
}

bool PressuresAgree(Rows rows) {
    return std::ranges::none_of(rows, [rows](const TableRowRec& row) {
        return std::ranges::any_of(
            rows, [&row](const TableRowRec& other) { return Disagree(row, other); });
    });
}

/// The number of points; 0 when a number is out of range or one below it is missing.
int CountPoints(Rows rows) {
    std::array<bool, kMaxPoints + 1> used{};
    int highest = 0;
    for (const TableRowRec& row : rows) {
        for (const int point : {row.StartPoint, row.EndPoint}) {
            if (point < 1 || point > kMaxPoints) return 0;
            used[point] = true;
            highest = std::max(highest, point);
        }
    }
    return std::ranges::count(used, true) == highest ? highest : 0;
}

PipeRec PipeFromRow(const TableRowRec& row) {
    PipeRec pipe;
    pipe.Diameter = row.RowDiameter;
    pipe.FlowRate = row.RowFlowRate;
    pipe.Length = row.RowLength;
    pipe.StartPoint = row.StartPoint;
    pipe.EndPoint = row.EndPoint;
    pipe.FlowFromPoint = row.StartPoint;
    pipe.Z1 = ToInt16(row.RowZ1);
    pipe.Z2 = ToInt16(row.RowZ2);
    pipe.X1 = kAnyPlace;
    return pipe;
}

void SetPoint(WorkNetwork& work, int number, float pressure, const std::string& cellText) {
    PointRec& point = work.WorkPoints[number];
    point = PointRec();
    point.Pressure = pressure;
    point.X = kAnyPlace;
    work.WorkPressureUnknown[number] = cellText.empty();
}

/// Of several rows at a point the last one decides.
void ConvertRow(const Project& project, const TableTexts& texts, int row, WorkNetwork& work) {
    using namespace table_column;
    const TableRowRec& data = project.TableRows[row];
    const int pipe = row - 1;
    work.WorkPipes[pipe] = PipeFromRow(data);
    work.WorkFlowUnknown[pipe] = texts.At(row, kFlowRate).empty();
    SetPoint(work, data.StartPoint, data.StartPressure, texts.At(row, kStartPressure));
    SetPoint(work, data.EndPoint, data.EndPressure, texts.At(row, kEndPressure));
}

}  // namespace

bool TableToNetwork(Project& project, const TableTexts& texts, WorkNetwork& work,
                    MessageBoxes& boxes) {
    project.numins = CountListedRows(project);
    const Rows rows = ListedRows(project);
    if (!PressuresAgree(rows)) {
        boxes.Show(kPressuresDiffer);
        return false;
    }
    const int points = CountPoints(rows);
    if (points == 0 && !rows.empty()) {
        boxes.Show(kPointsLeaveGap);
        return false;
    }
    work.WorkPipeCount = project.numins;
    work.WorkPointCount = points;
    work.WorkComponents.clear();
    for (int row = kFirstTableRow; row < kFirstTableRow + project.numins; ++row) {
        ConvertRow(project, texts, row, work);
    }
    return true;
}

}  // namespace idrova
