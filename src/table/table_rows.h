// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "model/project.h"
#include "table/table_texts.h"

namespace idrova {

/// Whole rows of the table. The list, which is what is computed, ends above the first row that
/// misses a point.

int CountListedRows(const Project& project);

/// The filled rows below the row that ends the list, ascending.
std::vector<int> RowsBelowGap(const Project& project, const TableTexts& texts);

/// What the table tells of the rows below its list.
struct GapNote {
    std::string text;         ///< empty when there are none
    bool canCloseUp = false;  ///< the row that ends the list is empty
};
GapNote NoteOfGap(const Project& project, const TableTexts& texts);

/// Moves the rows below a gap up over the empty ones.
void CloseUp(Project& project, TableTexts& texts);

/// Moves the rows from `row` on down by `count`, which leaves empty ones. False, and nothing is
/// changed, when filled rows would fall off the end.
bool InsertRows(Project& project, TableTexts& texts, int row, int count);

/// Takes the rows away; those below move up.
void DeleteRows(Project& project, TableTexts& texts, int firstRow, int lastRow);

/// "Row 3", "Rows 3 to 5, 8": as the table numbers them.
std::string RowsText(const std::vector<int>& rows);

/// "3 to 5, 8", of ascending numbers.
std::string RangesText(const std::vector<int>& numbers);

}  // namespace idrova
