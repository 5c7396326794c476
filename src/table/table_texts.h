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

/// A pressure (Pa) in the unit of the panels, as a table cell shows it: with six digits when they
/// stand for exactly this pressure, so that 82.9 bar does not come back as 82.89999.
std::string PressureCellText(const Project& project, float pressure);

/// Writes the fields that are not 0, and the zeros that are given values, into their cells. Other
/// cells keep what they show.
void FillTable(const Project& project, TableTexts& texts);

/// Empties every data cell and with it its field.
void ClearTable(Project& project, TableTexts& texts);

}  // namespace idrova
