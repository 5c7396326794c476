// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "model/project.h"
#include "table/table_texts.h"

namespace idrova {

/// A rectangle of cells, its corners included.
struct TableBlock {
    int firstRow = 0;
    int firstColumn = 0;
    int lastRow = 0;
    int lastColumn = 0;
};

/// The cells' texts as spreadsheets exchange them: tabs between cells, a line feed after each row.
std::string CopyBlock(const TableTexts& texts, const TableBlock& block);

/// Puts such a text into the cells from this one on, as if it were typed without the blanks around
/// it; what lies beyond the table is dropped. Pressures come last and the given ones after the
/// empty ones, so that a pressure given in one of the pasted rows reaches all the rows of its
/// point. An empty pressure leaves a cell that was empty to what its point fetches.
void PasteBlock(Project& project, TableTexts& texts, int row, int column, std::string_view text);

/// Empties the cells.
void ClearBlock(Project& project, TableTexts& texts, const TableBlock& block);

}  // namespace idrova
