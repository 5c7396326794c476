// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_texts.h"

#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "model/pipe_sizes.h"
#include "table/cell_reading.h"

namespace idrova {
namespace {

bool InTable(int row, int column) {
    return row >= 1 && row <= kTableLines && column >= 0 && column < kTableColumns;
}

bool IsGivenZero(const TableRowRec& data, int column) {
    return std::ranges::any_of(kGivenColumns, [&](const GivenColumn& given) {
        return given.column == column && data.*given.given;
    });
}

void FillRow(const Project& project, TableTexts& texts, int row) {
    using namespace table_column;
    const TableRowRec& data = project.TableRows[row];
    const auto fill = [&](int column, float value) {
        if (texts.IsFramed(row, column) || (value == 0 && !IsGivenZero(data, column))) return;
        texts.Set(row, column, UnitOf(project.settings, column).TextOf(value));
    };
    fill(kStartPoint, data.StartPoint);
    fill(kEndPoint, data.EndPoint);
    for (int column = 1; column < kTableColumns; ++column) {
        if (const auto field = FieldOf(column)) fill(column, data.*field);
    }
    if (data.RowDiameter != 0 && !texts.IsFramed(row, kNominalSize)) {
        texts.Set(row, kNominalSize, NominalSizeText(data.RowDiameter));
    }
}

}  // namespace

TableTexts::TableTexts() {
    for (int column = 0; column < kTableColumns; ++column) {
        Set(1, column, kTableColumnList[column].header);
    }
    for (int row = kFirstTableRow; row <= kLastTableRow; ++row) {
        Set(row, table_column::kNumber, GeneralText(ShownRow(row)));
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
    const auto namesPoint = [&](int point) { return ReadNumber(At(row, point)) != 0; };
    return row >= kFirstTableRow && InTable(row, column) && EmptyMeansUnknown(column) &&
           At(row, column).empty() &&
           (namesPoint(table_column::kStartPoint) || namesPoint(table_column::kEndPoint));
}

bool TableTexts::IsFramed(int row, int column) const {
    return row >= kFirstTableRow && InTable(row, column) && !IsWholeCell(column, At(row, column));
}

bool TableTexts::IsEmptyRow(int row) const {
    const Line& line = lines_[row];
    return std::all_of(line.begin() + 1, line.end(), [](const auto& text) { return text.empty(); });
}

void TableTexts::MoveRow(int from, int to) {
    for (int column = 1; column < kTableColumns; ++column) {
        lines_[to][column] = std::exchange(lines_[from][column], {});
    }
}

void TableTexts::ClearRow(int row) {
    for (int column = 1; column < kTableColumns; ++column) lines_[row][column].clear();
}

float TableRowRec::*FieldOf(int column) {
    using namespace table_column;
    switch (column) {
        case kStartPressure:
            return &TableRowRec::StartPressure;
        case kEndPressure:
            return &TableRowRec::EndPressure;
        case kDiameter:
            return &TableRowRec::RowDiameter;
        case kLength:
            return &TableRowRec::RowLength;
        case kFlowRate:
            return &TableRowRec::RowFlowRate;
        case kZ1:
            return &TableRowRec::RowZ1;
        case kZ2:
            return &TableRowRec::RowZ2;
        case kLossSum:
            return &TableRowRec::RowLossSum;
        default:
            return nullptr;
    }
}

std::string HeaderOf(const Settings& settings, int column) {
    constexpr std::string_view results[] = {"flow [kg/h]", "velocity [m/s]", "Pa/m", "p1", "p2"};
    const bool isResult = column >= kTableColumns;
    std::string header(isResult ? results[column - kTableColumns]
                                : kTableColumnList[column].header);
    if (!IsPressureColumn(column) && column < kTableColumns + 3) return header;
    return header + (settings.PressureUnit == Unit::Bar ? " [bar]" : " [mbar]");
}

std::string NominalSizeText(float diameter) {
    const int size = NominalSizeOf(diameter);
    return size == 0 ? "" : std::string(NominalSizeNames[size]) + '"';
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
