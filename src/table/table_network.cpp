// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_network.h"

#include <algorithm>

#include "base/number_text.h"
#include "table/table_checks.h"
#include "table/table_rows.h"

namespace idrova {
namespace {

int HighestPoint(ListedRows rows) {
    int highest = 0;
    for (const TableRowRec& row : rows) {
        highest = std::max({highest, int{row.StartPoint}, int{row.EndPoint}});
    }
    return highest;
}

PipeRec PipeFromRow(const TableRowRec& row) {
    PipeRec pipe;
    pipe.Diameter = row.RowDiameter;
    pipe.FlowRate = row.RowFlowRate;
    pipe.Length = row.RowLength;
    pipe.LossSum = row.RowLossSum;
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

std::optional<TableRefusal> TableToNetwork(Project& project, const TableTexts& texts,
                                           WorkNetwork& work) {
    project.numins = CountListedRows(project);
    const auto rows = ListedRows(project.TableRows).subspan(kFirstTableRow, project.numins);
    if (auto refusal = CheckRows(rows)) return refusal;
    work.WorkPipeCount = project.numins;
    work.WorkPointCount = HighestPoint(rows);
    work.WorkComponents.clear();
    for (int row = kFirstTableRow; row < kFirstTableRow + project.numins; ++row) {
        ConvertRow(project, texts, row, work);
    }
    return std::nullopt;
}

}  // namespace idrova
