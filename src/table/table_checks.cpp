// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_checks.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <utility>

#include "base/number_text.h"
#include "table/messages.h"
#include "table/table_rows.h"

namespace idrova {
namespace {

using Notes = std::vector<Note>;

/// One end of a row.
struct RowEnd {
    int row;
    float pressure;
    bool given;
    bool isStart;
};

/// The ends at each point, in the order in which they are looked at.
std::map<int, std::vector<RowEnd>> EndsByPoint(ListedRows rows) {
    std::map<int, std::vector<RowEnd>> ends;
    int number = kFirstTableRow;
    for (const TableRowRec& row : rows) {
        ends[row.StartPoint].push_back({number, row.StartPressure, row.P1Given, true});
        ends[row.EndPoint].push_back({number, row.EndPressure, row.P2Given, false});
        ++number;
    }
    return ends;
}

Note OnRow(int row, const std::string& text) {
    return {text, NoteOn::Row, ShownRow(row)};
}

std::vector<int> RowsOf(const std::vector<RowEnd>& ends) {
    std::vector<int> rows;
    for (const RowEnd& end : ends) {
        if (rows.empty() || rows.back() != end.row) rows.push_back(end.row);
    }
    return rows;
}

std::string DifferentPressures(int point, const std::vector<RowEnd>& ends) {
    return RowsText(RowsOf(ends)) + " give point " + GeneralText(point) + " different pressures";
}

bool OneKindDisagrees(const std::vector<RowEnd>& ends) {
    return std::ranges::any_of(ends, [&ends](const RowEnd& one) {
        return std::ranges::any_of(ends, [&one](const RowEnd& other) {
            return one.isStart == other.isStart && one.pressure != other.pressure;
        });
    });
}

Notes NotePressures(ListedRows rows) {
    Notes notes;
    for (const auto& [point, ends] : EndsByPoint(rows)) {
        if (!OneKindDisagrees(ends)) continue;
        notes.push_back(OnRow(ends.back().row, DifferentPressures(point, ends)));
    }
    return notes;
}

/// What is wrong with the point numbers, and the row that shows it; empty when nothing is.
std::pair<std::string, int> FaultOfPoints(ListedRows rows) {
    std::vector<int> missing;
    int expected = 1;
    int row = 0;
    for (const auto& [point, ends] : EndsByPoint(rows)) {
        if (point < 1 || point > kMaxPoints) {
            return {GeneralText(point) + " is not between 1 and " + GeneralText(kMaxPoints),
                    ends.front().row};
        }
        if (point > expected && row == 0) row = ends.front().row;
        for (; expected < point; ++expected) missing.push_back(expected);
        ++expected;
    }
    if (missing.empty()) return {};
    return {RangesText(missing) + (missing.size() == 1 ? " is missing" : " are missing"), row};
}

void NoteEnd(const Project& project, const TableTexts& texts, Notes& notes) {
    if (const GapNote gap = NoteOfGap(project, texts); !gap.text.empty()) {
        notes.push_back(OnRow(RowsBelowGap(project, texts).front(), gap.text));
        return;
    }
    const int end = kFirstTableRow + CountListedRows(project);
    if (end > kLastTableRow || texts.IsEmptyRow(end)) return;
    notes.push_back(OnRow(end, RowsText({end}) + " lacks a point: it is not computed"));
}

/// Of ends of different kinds the last one counts.
void NoteOtherPressures(ListedRows rows, Notes& notes) {
    for (const auto& [point, ends] : EndsByPoint(rows)) {
        const RowEnd& last = ends.back();
        const bool same = std::ranges::all_of(ends, [&last](const RowEnd& end) {
            return end.given == last.given && end.pressure == last.pressure;
        });
        if (same) continue;
        notes.push_back(OnRow(last.row, DifferentPressures(point, ends) + ": that of row " +
                                            GeneralText(ShownRow(last.row)) + " counts"));
    }
}

std::string ReadAs(const Project& project, int row, int column) {
    const TableRowRec& data = project.TableRows[row];
    if (column == table_column::kStartPoint) return GeneralText(int{data.StartPoint});
    if (column == table_column::kEndPoint) return GeneralText(int{data.EndPoint});
    return UnitOf(project.settings, column).TextOf(data.*FieldOf(column));
}

void NoteTexts(const Project& project, const TableTexts& texts, int row, Notes& notes) {
    std::string list;
    for (int column = 1; column < kTableColumns; ++column) {
        if (!texts.IsFramed(row, column)) continue;
        const std::string_view header = kTableColumnList[column].header;
        list += list.empty() ? ": " : ", ";
        list += std::string(header.substr(0, header.find(" ["))) + " \"" + texts.At(row, column);
        list += column == table_column::kNominalSize
                    ? "\" is no size"
                    : "\" is read as " + ReadAs(project, row, column);
    }
    if (!list.empty()) notes.push_back(OnRow(row, RowsText({row}) + list));
}

}  // namespace

std::optional<TableRefusal> CheckRows(ListedRows rows) {
    if (Notes notes = NotePressures(rows); !notes.empty()) {
        return TableRefusal{kPressuresDiffer, std::move(notes)};
    }
    const auto [fault, row] = FaultOfPoints(rows);
    if (fault.empty()) return std::nullopt;
    return TableRefusal{PointsLeaveGap(fault), {OnRow(row, "Of the point numbers " + fault)}};
}

std::vector<Note> TableNotes(const Project& project, const TableTexts& texts) {
    Notes notes;
    NoteEnd(project, texts, notes);
    const int count = CountListedRows(project);
    NoteOtherPressures(ListedRows(project.TableRows).subspan(kFirstTableRow, count), notes);
    for (int row = kFirstTableRow; row < kFirstTableRow + count; ++row) {
        NoteTexts(project, texts, row, notes);
    }
    return notes;
}

}  // namespace idrova
