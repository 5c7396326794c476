// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_block.h"

#include <algorithm>
#include <vector>

#include "table/cell_reading.h"
#include "table/table_edit.h"

namespace idrova {
namespace {

struct PastedCell {
    int row;
    int column;
    std::string text;
};

constexpr std::string_view kBlanks = " \t\r\n";

std::string_view Trimmed(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

/// The length of the cell at the start of `text`. Spreadsheets put a cell that holds quotes or line
/// breaks between quotes and double its own; what follows its last quote up to the separator is
/// blank, else the quote belongs to an ordinary text.
std::size_t CellLength(std::string_view text) {
    const auto endFrom = [text](std::size_t from) {
        return std::min(text.find_first_of("\t\n", from), text.size());
    };
    if (!text.starts_with('"')) return endFrom(0);
    std::size_t quote = text.find('"', 1);
    while (quote != std::string_view::npos && text.substr(quote).starts_with("\"\"")) {
        quote = text.find('"', quote + 2);
    }
    if (quote == std::string_view::npos) return endFrom(0);
    const std::size_t end = endFrom(quote);
    return Trimmed(text.substr(quote + 1, end - quote - 1)).empty() ? end : endFrom(0);
}

/// The text of a cell without quotes and without blanks around it; of a single line.
std::string CellText(std::string_view cell) {
    cell = Trimmed(cell);
    if (cell.size() < 2 || cell.front() != '"' || cell.back() != '"') return std::string(cell);
    cell = Trimmed(cell.substr(1, cell.size() - 2));
    std::string text;
    for (std::size_t i = 0; i < cell.size(); ++i) {
        text += kBlanks.find(cell[i]) == std::string_view::npos ? cell[i] : ' ';
        if (cell.substr(i, 2) == "\"\"") ++i;
    }
    return text;
}

std::vector<PastedCell> ReadCells(std::string_view text, int firstRow, int firstColumn) {
    if (text.ends_with('\n')) text.remove_suffix(1);
    std::vector<PastedCell> cells;
    int row = firstRow;
    int column = firstColumn;
    for (;;) {
        const std::size_t length = CellLength(text);
        cells.push_back({row, column++, CellText(text.substr(0, length))});
        if (length == text.size()) return cells;
        if (text[length] == '\n') {
            ++row;
            column = firstColumn;
        }
        text.remove_prefix(length + 1);
    }
}

bool IsPressure(const PastedCell& cell) {
    return IsPressureColumn(cell.column);
}

/// 0 for what is pasted first.
int Turn(const PastedCell& cell) {
    if (!IsPressure(cell)) return 0;
    return cell.text.empty() ? 1 : 2;
}

/// Whether a size that is pasted beside the empty diameter fills it.
bool IsFilledBySize(const std::vector<PastedCell>& cells, std::size_t i) {
    return cells[i].column == table_column::kDiameter && cells[i].text.empty() && i > 0 &&
           cells[i - 1].row == cells[i].row && NominalSizeNamed(cells[i - 1].text) != 0;
}

/// A row that is to name another point with an unknown pressure gives up its own first, which is
/// then of no other row.
void LeavePoints(Project& project, TableTexts& texts, const std::vector<PastedCell>& cells) {
    for (std::size_t i = 1; i < cells.size(); ++i) {
        const PastedCell& point = cells[i - 1];
        const PastedCell& pressure = cells[i];
        if (!IsPressure(pressure) || !pressure.text.empty() || point.row != pressure.row) continue;
        if (texts.At(point.row, point.column) == point.text) continue;
        ChangeCell(project, texts, point.row, point.column, "");
        ChangeCell(project, texts, pressure.row, pressure.column, "");
    }
}

/// An empty pressure on an empty cell is the same text again. Pasting it would empty what the point
/// beside it has fetched by then, and with it the pressure of the point's other rows.
bool LeavesCell(const TableTexts& texts, const std::vector<PastedCell>& cells, std::size_t i) {
    const PastedCell& cell = cells[i];
    const bool leavesPressure =
        IsPressure(cell) && cell.text.empty() && texts.At(cell.row, cell.column).empty();
    return leavesPressure || IsFilledBySize(cells, i);
}

void PasteCells(Project& project, TableTexts& texts, const std::vector<PastedCell>& pasted) {
    LeavePoints(project, texts, pasted);
    std::vector<PastedCell> cells;
    for (std::size_t i = 0; i < pasted.size(); ++i) {
        if (!LeavesCell(texts, pasted, i)) cells.push_back(pasted[i]);
    }
    for (const int turn : {0, 1, 2}) {
        for (const PastedCell& cell : cells) {
            if (Turn(cell) != turn) continue;
            ChangeCell(project, texts, cell.row, cell.column, cell.text);
        }
    }
    // Where the rows contradict each other they go on doing so, until the table is refused for it.
    for (const PastedCell& cell : cells) {
        if (Turn(cell) == 2) KeepPressure(project, texts, cell.row, cell.column, cell.text);
    }
}

template <typename Visit>
void ForCells(const TableBlock& block, const Visit& visit) {
    for (int row = block.firstRow; row <= block.lastRow; ++row) {
        for (int column = block.firstColumn; column <= block.lastColumn; ++column) {
            visit(row, column);
        }
    }
}

}  // namespace

std::string CopyBlock(const TableTexts& texts, const RowResults& results, const TableBlock& block) {
    std::string copy;
    ForCells(block, [&](int row, int column) {
        copy += column < kTableColumns ? texts.At(row, column) : results.At(row, column);
        copy += column == block.lastColumn ? '\n' : '\t';
    });
    return copy;
}

PasteLoss LossOfPaste(const TableBlock& block, std::string_view text) {
    const std::vector<PastedCell> cells = ReadCells(text, block.firstRow, block.firstColumn);
    int lastRow = block.firstRow;
    int lastColumn = block.firstColumn;
    for (const PastedCell& cell : cells) {
        if (cell.text.empty()) continue;
        lastRow = std::max(lastRow, cell.row);
        lastColumn = std::max(lastColumn, cell.column);
    }
    return {.rows = lastRow - block.firstRow + 1,
            .columns = lastColumn - block.firstColumn + 1,
            .rowsLost = std::max(lastRow - kLastTableRow, 0),
            .columnsLost = std::max(lastColumn - (kTableColumns - 1), 0)};
}

void PasteBlock(Project& project, TableTexts& texts, const TableBlock& block,
                std::string_view text) {
    std::vector<PastedCell> cells = ReadCells(text, block.firstRow, block.firstColumn);
    if (cells.size() == 1) {
        const std::string value = cells.front().text;
        cells.clear();
        ForCells(block, [&](int row, int column) { cells.push_back({row, column, value}); });
    }
    PasteCells(project, texts, cells);
}

void FillDown(Project& project, TableTexts& texts, TableBlock block) {
    if (block.firstRow == block.lastRow) --block.firstRow;
    if (block.firstRow < kFirstTableRow) return;
    const int from = block.firstRow++;
    std::vector<PastedCell> cells;
    ForCells(block, [&](int row, int column) {
        cells.push_back({row, column, texts.At(from, column)});
    });
    PasteCells(project, texts, cells);
}

void ClearBlock(Project& project, TableTexts& texts, const TableBlock& block) {
    // A point comes before its pressure: the other rows of the point keep theirs.
    ForCells(block, [&](int row, int column) { ChangeCell(project, texts, row, column, ""); });
}

}  // namespace idrova
