// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "model/project.h"
#include "table/table_columns.h"

namespace idrova {

/// What the cells of the table editor show: lines 1 .. 100, columns 0 .. 10. Line r shows row r of
/// the project's table; line 1 holds the headers and column 0 the line numbers.
class TableTexts {
  public:
    TableTexts();

    /// Empty outside the table.
    const std::string& At(int row, int column) const;
    /// Nothing outside the table. Stores the text alone: an edit goes through `ChangeCell`.
    void Set(int row, int column, std::string_view text);

    /// Whether the cell is painted with `kToComputeColour`.
    bool IsPainted(int row, int column) const;

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

/// Writes the fields that are not 0, and the zeros that are given values, into their cells. Other
/// cells keep what they show.
void FillTable(const Project& project, TableTexts& texts);

}  // namespace idrova
