// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_block.h"

#include <vector>

#include "table/table_edit.h"

namespace idrova {
namespace {

struct PastedCell {
    int row;
    int column;
    std::string text;
};

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (std::size_t end = text.find(separator); end != std::string_view::npos;
         end = text.find(separator)) {
        parts.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    parts.push_back(text);
    return parts;
}

/// Spreadsheets put a cell that holds quotes, like 1 1/2", between quotes and double its own.
std::string Unquoted(std::string_view cell) {
    if (cell.size() < 2 || cell.front() != '"' || cell.back() != '"') return std::string(cell);
    cell = cell.substr(1, cell.size() - 2);
    std::string text;
    for (std::size_t i = 0; i < cell.size(); ++i) {
        text += cell[i];
        if (cell.substr(i, 2) == "\"\"") ++i;
    }
    return text;
}

std::vector<PastedCell> ReadCells(std::string_view text, int firstRow, int firstColumn) {
    if (text.ends_with('\n')) text.remove_suffix(1);
    std::vector<PastedCell> cells;
    int row = firstRow;
    for (std::string_view line : Split(text, '\n')) {
        if (line.ends_with('\r')) line.remove_suffix(1);
        int column = firstColumn;
        for (const std::string_view cell : Split(line, '\t')) {
            cells.push_back({row, column++, Unquoted(cell)});
        }
        ++row;
    }
    return cells;
}

/// 0 for what is pasted first.
int Turn(const PastedCell& cell) {
    const bool isPressure =
        cell.column == table_column::kStartPressure || cell.column == table_column::kEndPressure;
    if (!isPressure) return 0;
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

void PasteBlock(Project& project, TableTexts& texts, int row, int column, std::string_view text) {
    const std::vector<PastedCell> cells = ReadCells(text, row, column);
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
