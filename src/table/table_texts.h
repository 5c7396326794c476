// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "model/project.h"
#include "table/table_columns.h"

namespace idrova {

/// What the cells of the table editor show: lines 1 .. 100, columns 0 .. 11. Line r shows row r of
/// the project's table; line 1 holds the headers and column 0 the numbers of the pipes.
class TableTexts {
  public:
    TableTexts();

    /// Empty outside the table.
    const std::string& At(int row, int column) const;
    /// Nothing outside the table. Stores the text alone: an edit goes through `ChangeCell`.
    void Set(int row, int column, std::string_view text);

    /// Whether the cell is painted with `kToComputeColour`: of the rows that name a point.
    bool IsPainted(int row, int column) const;

    /// Whether the cell has a frame: its text is not, as a whole, what its column holds.
    bool IsFramed(int row, int column) const;

    /// Nothing in its data cells.
    bool IsEmptyRow(int row) const;
    /// Puts the data cells of one row into another and empties them there.
    void MoveRow(int from, int to);
    void ClearRow(int row);

    bool operator==(const TableTexts&) const = default;

  private:
    using Line = std::array<std::string, kTableColumns>;
    std::array<Line, kTableLines + 1> lines_;
};

/// What the number in a cell stands for: the SI value is number * multiplier / divisor.
struct CellUnit {
    double multiplier = 1;
    double divisor = 1;

    float Stored(double number) const;

    /// The text of a stored value: of six digits when they stand for exactly this value, so that
    /// 82.9 bar does not come back as 82.89999.
    std::string TextOf(float stored) const;
};

/// The unit of a column; pressures have that of the panels.
CellUnit UnitOf(const Settings& settings, int column);

/// The field of a row that a column shows; null for those that hold no quantity.
float TableRowRec::*FieldOf(int column);

/// The header of a column, results included; those of the pressures say their unit.
std::string HeaderOf(const Settings& settings, int column);

/// What the cell of the nominal size shows beside a diameter in m; empty when it has no such size.
std::string NominalSizeText(float diameter);

/// Writes the fields that are not 0, and the zeros that are given values, into their cells. Other
/// cells keep what they show, and so do those with a frame.
void FillTable(const Project& project, TableTexts& texts);

}  // namespace idrova
