// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "model/project.h"
#include "table/table_texts.h"

namespace idrova {

/// Puts `text` into a data cell (rows 2 .. 100, columns 1 .. 10) and its number into the field of
/// the row; the longest leading number counts, 0 when there is none. Rows that name the same point
/// keep one pressure: a point number fetches the pressure cell of the rows that have the point
/// already, a pressure goes to all of them, and a cell that is empty there is empty here, so that
/// an unknown pressure stays unknown. The same text again, and any other cell, changes nothing.
void ChangeCell(Project& project, TableTexts& texts, int row, int column, std::string_view text);

/// Puts a nominal size (1 .. 12) and its inside diameter into a row; any other number is ignored.
void ChooseNominalSize(Project& project, TableTexts& texts, int row, int size);

}  // namespace idrova
