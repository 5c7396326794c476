// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_texts.h"

#include "base/number_text.h"

namespace idrova {
namespace {

bool InTable(int row, int column) {
    return row >= 1 && row <= kTableLines && column >= 0 && column < kTableColumns;
}

std::string NumberCellText(double value) {
    return GeneralText(static_cast<float>(value));
}

void FillCell(TableTexts& texts, int row, int column, bool shown, const std::string& text) {
    if (shown) texts.Set(row, column, text);
}

void FillRow(const Project& project, TableTexts& texts, int row) {
    using namespace table_column;
    const TableRowRec& data = project.TableRows[row];
    const auto fill = [&](int column, double value, bool given = false) {
        FillCell(texts, row, column, value != 0 || given, NumberCellText(value));
    };
    fill(kStartPoint, data.StartPoint);
    fill(kEndPoint, data.EndPoint);
    FillCell(texts, row, kStartPressure, data.StartPressure != 0 || data.P1Given,
             PressureCellText(project, data.StartPressure));
    FillCell(texts, row, kEndPressure, data.EndPressure != 0 || data.P2Given,
             PressureCellText(project, data.EndPressure));
    fill(kDiameter, static_cast<double>(data.RowDiameter) * kMillimetresPerMetre);
    fill(kLength, data.RowLength);
    fill(kFlowRate, static_cast<double>(data.RowFlowRate) * kSecondsPerHour, data.FlowGiven);
    fill(kZ1, data.RowZ1);
    fill(kZ2, data.RowZ2);
}

}  // namespace

TableTexts::TableTexts() {
    for (int column = 0; column < kTableColumns; ++column) {
        Set(1, column, kTableColumnList[column].header);
    }
    for (int row = kFirstTableRow; row <= kLastTableRow; ++row) {
        Set(row, table_column::kNumber, GeneralText(row));
    }
}

const std::string& TableTexts::At(int row, int column) const {
    static const std::string nothing;
    if (!InTable(row, column)) return nothing;
    return lines_[row][column];
}

void TableTexts::Set(int row, int column, std::string_view text) {
    if (!InTable(row, column)) return;
    lines_[row][column] = text;
}

bool TableTexts::IsPainted(int row, int column) const {
    return row >= kFirstTableRow && InTable(row, column) && EmptyMeansUnknown(column) &&
           At(row, column).empty();
}

std::string PressureCellText(const Project& project, float pressure) {
    const double factor = project.PressureUnitFactor;
    const double shown = static_cast<double>(pressure) / factor;
    const double sixDigits = ReadNumber(FormatNumber(shown, "0.00000E+0"));
    return NumberCellText(ToSingle(sixDigits * factor) == pressure ? sixDigits : shown);
}

void FillTable(const Project& project, TableTexts& texts) {
    for (int row = kFirstTableRow; row <= kLastTableRow; ++row) FillRow(project, texts, row);
}

void ClearTable(Project& project, TableTexts& texts) {
    texts = TableTexts();
    for (int row = kFirstTableRow; row <= kLastTableRow; ++row) {
        project.TableRows[row] = TableRowRec();
    }
}

}  // namespace idrova
