// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_edit.h"

#include <optional>
#include <string>
#include <utility>

#include "base/number_text.h"
#include "model/pipe_sizes.h"
#include "table/cell_reading.h"

namespace idrova {
namespace {

/// The fields and the pressure column of one end of a row.
struct RowEnd {
    int pressureColumn;
    std::int16_t TableRowRec::*point;
    float TableRowRec::*pressure;
    bool TableRowRec::*given;
};

constexpr RowEnd kStart{table_column::kStartPressure, &TableRowRec::StartPoint,
                        &TableRowRec::StartPressure, &TableRowRec::P1Given};
constexpr RowEnd kEnd{table_column::kEndPressure, &TableRowRec::EndPoint, &TableRowRec::EndPressure,
                      &TableRowRec::P2Given};

/// A pressure cell: what it shows and what it stands for.
struct PressureCell {
    std::string text;  ///< empty when the pressure is unknown
    float pressure = 0;
};

/// The rows of the table while a cell of one of them changes.
class RowEdit {
  public:
    RowEdit(Project& project, TableTexts& texts, int row)
        : project_(project), texts_(texts), row_(row) {}

    TableRowRec& Row() { return RowAt(row_); }

    void NamePoint(const RowEnd& end, double number) {
        const std::int16_t left = std::exchange(Row().*end.point, ToInt16(number));
        if (Row().*end.given && !PressureElsewhere(left)) {
            SetPressure(end, {texts_.At(row_, end.pressureColumn), Row().*end.pressure});
        } else if (left != Row().*end.point) {
            SetPressure(end, PressureElsewhere(Row().*end.point).value_or(PressureCell()));
        }
    }

    void TypePressure(const RowEnd& end, std::string_view text) {
        const CellUnit unit = UnitOf(project_.settings, end.pressureColumn);
        SetPressure(end, {std::string(text), unit.Stored(ReadNumber(text))});
    }

    void KeepPressure(const RowEnd& end, std::string_view text) {
        const CellUnit unit = UnitOf(project_.settings, end.pressureColumn);
        Store(row_, end, {std::string(text), unit.Stored(ReadNumber(text))});
    }

  private:
    TableRowRec& RowAt(int row) { return project_.TableRows[row]; }

    PressureCell CopyOf(const TableRowRec& row, const RowEnd& end) const {
        if (!(row.*end.given)) return {};
        const CellUnit unit = UnitOf(project_.settings, end.pressureColumn);
        return {unit.TextOf(row.*end.pressure), row.*end.pressure};
    }

    template <typename Visit>
    void ForOtherEndsAt(std::int16_t point, const Visit& visit) {
        for (int row = kFirstTableRow; row <= kLastTableRow; ++row) {
            if (row == row_) continue;
            for (const RowEnd& end : {kStart, kEnd}) {
                if (RowAt(row).*end.point == point) visit(row, end);
            }
        }
    }

    std::optional<PressureCell> PressureElsewhere(std::int16_t point) {
        std::optional<PressureCell> last;
        if (point == 0) return last;
        ForOtherEndsAt(point, [&](int row, const RowEnd& end) { last = CopyOf(RowAt(row), end); });
        return last;
    }

    void SetPressure(const RowEnd& end, const PressureCell& cell) {
        Store(row_, end, cell);
        const std::int16_t point = Row().*end.point;
        if (point == 0) return;
        const PressureCell copy = CopyOf(Row(), end);
        ForOtherEndsAt(point, [&](int row, const RowEnd& other) { Store(row, other, copy); });
    }

    void Store(int row, const RowEnd& end, const PressureCell& cell) {
        texts_.Set(row, end.pressureColumn, cell.text);
        RowAt(row).*end.pressure = cell.pressure;
        RowAt(row).*end.given = !cell.text.empty();
    }

    Project& project_;
    TableTexts& texts_;
    int row_;
};

bool IsDataCell(int row, int column) {
    return row >= kFirstTableRow && row <= kLastTableRow && column > table_column::kNumber &&
           column < kTableColumns;
}

void SetNominalSize(Project& project, TableTexts& texts, int row, int size) {
    if (size == 0) return;
    texts.Set(row, table_column::kNominalSize, std::string(NominalSizeNames[size]) + '"');
    ChangeCell(project, texts, row, table_column::kDiameter, InnerDiameterText(size));
}

}  // namespace

void ChangeCell(Project& project, TableTexts& texts, int row, int column, std::string_view typed) {
    using namespace table_column;
    const std::string text = CellText(column, typed);
    if (!IsDataCell(row, column) || texts.At(row, column) == text) return;

    RowEdit edit(project, texts, row);
    if (column == kStartPressure) return edit.TypePressure(kStart, text);
    if (column == kEndPressure) return edit.TypePressure(kEnd, text);

    texts.Set(row, column, text);
    const double number = ReadNumber(text);
    if (column == kStartPoint) return edit.NamePoint(kStart, number);
    if (column == kEndPoint) return edit.NamePoint(kEnd, number);
    if (column == kNominalSize) {
        return SetNominalSize(project, texts, row, NominalSizeNamed(text));
    }
    TableRowRec& data = project.TableRows[row];
    data.*FieldOf(column) = UnitOf(project.settings, column).Stored(number);
    if (column == kFlowRate) data.FlowGiven = !text.empty();
    if (column == kDiameter) texts.Set(row, kNominalSize, NominalSizeText(data.RowDiameter));
}

void KeepPressure(Project& project, TableTexts& texts, int row, int column,
                  std::string_view typed) {
    if (!IsDataCell(row, column) || !IsPressureColumn(column)) return;
    RowEdit edit(project, texts, row);
    edit.KeepPressure(column == table_column::kStartPressure ? kStart : kEnd,
                      CellText(column, typed));
}

void ChooseNominalSize(Project& project, TableTexts& texts, int row, int size) {
    if (size < 1 || size > kNominalSizes || !IsDataCell(row, table_column::kNominalSize)) return;
    SetNominalSize(project, texts, row, size);
}

}  // namespace idrova
