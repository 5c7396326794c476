// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "model/project.h"
#include "table/row_results.h"
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
std::string CopyBlock(const TableTexts& texts, const RowResults& results, const TableBlock& block);

/// What of a pasted text does not fit into the table.
struct PasteLoss {
    int rows = 0, columns = 0;  ///< of the text, empty ones at its end not counted
    int rowsLost = 0, columnsLost = 0;
};
PasteLoss LossOfPaste(const TableBlock& block, std::string_view text);

/// Puts such a text into the cells from the block's first one on, or the only value of a text into
/// all cells of the block, as if it were typed without the blanks around it; what lies beyond the
/// table is dropped. Pressures come last and the given ones after the empty ones, so that a
/// pressure given in one of the pasted rows reaches all the rows of its point; pasted ones that
/// contradict each other all stay. An empty pressure leaves a cell that was empty to what its point
/// fetches, and an empty diameter is filled by the size beside it.
void PasteBlock(Project& project, TableTexts& texts, const TableBlock& block,
                std::string_view text);

/// Pastes the first row of the block into its others; into a block of one row the row above it.
void FillDown(Project& project, TableTexts& texts, TableBlock block);

/// Empties the cells.
void ClearBlock(Project& project, TableTexts& texts, const TableBlock& block);

}  // namespace idrova
