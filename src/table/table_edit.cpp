// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_edit.h"

#include <optional>
#include <string>

#include "base/number_text.h"
#include "model/pipe_sizes.h"

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
        Row().*end.point = ToInt16(number);
        if (const auto cell = PressureElsewhere(Row().*end.point)) SetPressure(end, *cell);
    }

    void TypePressure(const RowEnd& end, std::string_view text) {
        const CellUnit unit = UnitOf(project_.settings, end.pressureColumn);
        SetPressure(end, {std::string(text), unit.Stored(ReadNumber(text))});
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

}  // namespace

void ChangeCell(Project& project, TableTexts& texts, int row, int column, std::string_view text) {
    using namespace table_column;
    const bool isDataCell =
        row >= kFirstTableRow && row <= kLastTableRow && column > kNumber && column < kTableColumns;
    if (!isDataCell || texts.At(row, column) == text) return;

    RowEdit edit(project, texts, row);
    if (column == kStartPressure) return edit.TypePressure(kStart, text);
    if (column == kEndPressure) return edit.TypePressure(kEnd, text);

    texts.Set(row, column, text);
    const double number = ReadNumber(text);
    const float stored = UnitOf(project.settings, column).Stored(number);
    TableRowRec& data = edit.Row();
    switch (column) {
        case kStartPoint:
            return edit.NamePoint(kStart, number);
        case kEndPoint:
            return edit.NamePoint(kEnd, number);
        case kDiameter:
            data.RowDiameter = stored;
            return;
        case kLength:
            data.RowLength = stored;
            return;
        case kFlowRate:
            data.RowFlowRate = stored;
            data.FlowGiven = !text.empty();
            return;
        case kZ1:
            data.RowZ1 = stored;
            return;
        case kZ2:
            data.RowZ2 = stored;
            return;
        default:
            return;
    }
}

void ChooseNominalSize(Project& project, TableTexts& texts, int row, int size) {
    if (size < 1 || size > kNominalSizes) return;
    ChangeCell(project, texts, row, table_column::kNominalSize,
               std::string(NominalSizeNames[size]) + '"');
    ChangeCell(project, texts, row, table_column::kDiameter, InnerDiameterText(size));
}

}  // namespace idrova
