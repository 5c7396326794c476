// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_block.h"

#include <algorithm>
#include <vector>

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
    return cell.column == table_column::kStartPressure || cell.column == table_column::kEndPressure;
}

/// 0 for what is pasted first.
int Turn(const PastedCell& cell) {
    if (!IsPressure(cell)) return 0;
    return cell.text.empty() ? 1 : 2;
}

}  // namespace

std::string CopyBlock(const TableTexts& texts, const TableBlock& block) {
    std::string copy;
    for (int row = block.firstRow; row <= block.lastRow; ++row) {
        for (int column = block.firstColumn; column <= block.lastColumn; ++column) {
            copy += texts.At(row, column);
            copy += column == block.lastColumn ? '\n' : '\t';
        }
    }
    return copy;
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

void PasteBlock(Project& project, TableTexts& texts, int row, int column, std::string_view text) {
    std::vector<PastedCell> cells = ReadCells(text, row, column);
    LeavePoints(project, texts, cells);
    // An empty pressure on an empty cell is the same text again. Pasting it would empty what the
    // point beside it has fetched by then, and with it the pressure of the point's other rows.
    std::erase_if(cells, [&texts](const PastedCell& cell) {
        return IsPressure(cell) && cell.text.empty() && texts.At(cell.row, cell.column).empty();
    });
    for (const int turn : {0, 1, 2}) {
        for (const PastedCell& cell : cells) {
            if (Turn(cell) != turn) continue;
            ChangeCell(project, texts, cell.row, cell.column, cell.text);
        }
    }
}

void ClearBlock(Project& project, TableTexts& texts, const TableBlock& block) {
    // Points come before their pressures: the other rows of a point keep theirs.
    for (const int column : {table_column::kStartPoint, table_column::kEndPoint}) {
        if (column < block.firstColumn || column > block.lastColumn) continue;
        for (int row = block.firstRow; row <= block.lastRow; ++row) {
            ChangeCell(project, texts, row, column, "");
        }
    }
    for (int row = block.firstRow; row <= block.lastRow; ++row) {
        for (int column = block.firstColumn; column <= block.lastColumn; ++column) {
            ChangeCell(project, texts, row, column, "");
        }
    }
}

}  // namespace idrova
