// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "model/project.h"
#include "table/table_texts.h"

namespace idrova {

/// Puts what is `typed` into a data cell (rows 2 .. 100, columns 1 .. 11), as `CellText` has it,
/// and its number into the field of the row; the longest leading number counts, 0 when there is
/// none. Rows that name the same point keep one pressure: it goes to all of them. A point number
/// leaves the pressure of the old point to the rows that still have it, and fetches that of the new
/// one, which may be empty; a pressure that no other row has is the row's own, and goes along.
/// Diameter and nominal size follow each other. The same text again, and any other cell, changes
/// nothing.
void ChangeCell(Project& project, TableTexts& texts, int row, int column, std::string_view typed);

/// Puts a pressure into its cell alone, whatever the other rows of the point have.
void KeepPressure(Project& project, TableTexts& texts, int row, int column, std::string_view typed);

/// Puts a nominal size (1 .. 12) and its inside diameter into a row; any other number is ignored.
void ChooseNominalSize(Project& project, TableTexts& texts, int row, int size);

}  // namespace idrova
