// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_rows.h"

#include <utility>

#include "base/number_text.h"

namespace idrova {
namespace {

void MoveRow(Project& project, TableTexts& texts, int from, int to) {
    if (from == to) return;
    project.TableRows[to] = std::exchange(project.TableRows[from], {});
    texts.MoveRow(from, to);
}

int RowThatEndsList(const Project& project) {
    return kFirstTableRow + CountListedRows(project);
}

/// "3", "3, 4", "3 to 5".
std::string RangeText(int first, int last) {
    if (first == last) return GeneralText(first);
    return GeneralText(first) + (last == first + 1 ? ", " : " to ") + GeneralText(last);
}

}  // namespace

int CountListedRows(const Project& project) {
    int row = kFirstTableRow;
    while (row <= kLastTableRow) {
        const TableRowRec& data = project.TableRows[row];
        if (data.StartPoint == 0 || data.EndPoint == 0) break;
        ++row;
    }
    return row - kFirstTableRow;
}

std::vector<int> RowsBelowGap(const Project& project, const TableTexts& texts) {
    std::vector<int> rows;
    for (int row = RowThatEndsList(project) + 1; row <= kLastTableRow; ++row) {
        if (!texts.IsEmptyRow(row)) rows.push_back(row);
    }
    return rows;
}

GapNote NoteOfGap(const Project& project, const TableTexts& texts) {
    const std::vector<int> rows = RowsBelowGap(project, texts);
    if (rows.empty()) return {};
    const int end = RowThatEndsList(project);
    const bool isEmpty = texts.IsEmptyRow(end);
    const std::string gap = GeneralText(ShownRow(end));
    return {RowsText(rows) + (rows.size() == 1 ? " stands" : " stand") +
                (isEmpty ? " below the empty row " + gap
                         : " below row " + gap + ", which lacks a point") +
                (rows.size() == 1 ? ": it is" : ": they are") + " not computed",
            isEmpty};
}

void CloseUp(Project& project, TableTexts& texts) {
    int to = kFirstTableRow;
    for (int row = kFirstTableRow; row <= kLastTableRow; ++row) {
        if (!texts.IsEmptyRow(row)) MoveRow(project, texts, row, to++);
    }
}

bool InsertRows(Project& project, TableTexts& texts, int row, int count) {
    for (int last = kLastTableRow - count + 1; last <= kLastTableRow; ++last) {
        if (last >= row && !texts.IsEmptyRow(last)) return false;
    }
    for (int from = kLastTableRow - count; from >= row; --from) {
        MoveRow(project, texts, from, from + count);
    }
    return true;
}

void DeleteRows(Project& project, TableTexts& texts, int firstRow, int lastRow) {
    int to = firstRow;
    for (int row = lastRow + 1; row <= kLastTableRow; ++row) MoveRow(project, texts, row, to++);
    for (; to <= lastRow; ++to) {
        project.TableRows[to] = {};
        texts.ClearRow(to);
    }
}

std::string RowsText(const std::vector<int>& rows) {
    std::vector<int> shown;
    shown.reserve(rows.size());
    for (const int row : rows) shown.push_back(ShownRow(row));
    return (rows.size() == 1 ? "Row " : "Rows ") + RangesText(shown);
}

std::string RangesText(const std::vector<int>& numbers) {
    std::string text;
    for (std::size_t i = 0; i < numbers.size();) {
        std::size_t last = i;
        while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) ++last;
        if (!text.empty()) text += ", ";
        text += RangeText(numbers[i], numbers[last]);
        i = last + 1;
    }
    return text;
}

}  // namespace idrova
