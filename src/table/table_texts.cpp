// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_texts.h"

#include "base/number_text.h"

namespace idrova {
namespace {

bool InTable(int row, int column) {
    return row >= 1 && row <= kTableLines && column >= 0 && column < kTableColumns;
}

void FillRow(const Project& project, TableTexts& texts, int row) {
    using namespace table_column;
    const TableRowRec& data = project.TableRows[row];
    const auto fill = [&](int column, float value, bool given = false) {
        if (value == 0 && !given) return;
        texts.Set(row, column, UnitOf(project.settings, column).TextOf(value));
    };
    fill(kStartPoint, data.StartPoint);
    fill(kEndPoint, data.EndPoint);
    fill(kStartPressure, data.StartPressure, data.P1Given);
    fill(kEndPressure, data.EndPressure, data.P2Given);
    fill(kDiameter, data.RowDiameter);
    fill(kLength, data.RowLength);
    fill(kFlowRate, data.RowFlowRate, data.FlowGiven);
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

float CellUnit::Stored(double number) const {
    return ToSingle(number * multiplier / divisor);
}

std::string CellUnit::TextOf(float stored) const {
    const double shown = static_cast<double>(stored) * divisor / multiplier;
    const double sixDigits = ReadNumber(FormatNumber(shown, "0.00000E+0"));
    return GeneralText(static_cast<float>(Stored(sixDigits) == stored ? sixDigits : shown));
}

CellUnit UnitOf(const Settings& settings, int column) {
    using namespace table_column;
    switch (column) {
        case kStartPressure:
        case kEndPressure:
            return {.multiplier = settings.PressureUnitFactor};
        case kDiameter:
            return {.divisor = kMillimetresPerMetre};
        case kFlowRate:
            return {.divisor = kSecondsPerHour};
        default:
            return {};
    }
}

void FillTable(const Project& project, TableTexts& texts) {
    for (int row = kFirstTableRow; row <= kLastTableRow; ++row) FillRow(project, texts, row);
}

}  // namespace idrova
