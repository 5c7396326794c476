// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/problem_list.h"

#include <memory>
#include <utility>

#include "hydraulics/problems.h"
#include "hydraulics/work_network.h"
#include "results/limit_notes.h"
#include "results/result_age.h"
#include "table/table_checks.h"
#include "table/table_columns.h"
#include "table/table_network.h"

namespace idrova {
namespace {

std::vector<Note> WhatIsMissing(Project& project, const TableTexts& texts) {
    if (project.settings.Mode == WorkMode::SinglePipe) return {};
    const auto work = std::make_unique<WorkNetwork>();
    if (project.settings.Mode == WorkMode::Graphic) {
        CopyNetwork(project, *work);
    } else if (auto refusal = TableToNetwork(project, texts, *work)) {
        return std::move(refusal->notes);
    }
    return ProblemsOf(project.settings, *work);
}

ProblemView PresentProblems(Project& project, const TableTexts& texts, bool isChanged) {
    ProblemView view{isChanged ? "Changed since the computation" : "Not yet computed",
                     WhatIsMissing(project, texts)};
    if (!view.notes.empty()) view.caption = "Cannot be computed yet";
    if (project.settings.Mode == WorkMode::Table) {
        for (Note& note : TableNotes(project, texts)) view.notes.push_back(std::move(note));
    }
    return view;
}

int FirstRowOf(const Project& project, int point) {
    for (int row = kFirstTableRow; row <= kLastTableRow; ++row) {
        const TableRowRec& data = project.TableRows[row];
        if (data.StartPoint == point || data.EndPoint == point) return row;
    }
    return 0;
}

/// The table shows pipes, whose numbers its rows have, and points by their rows.
Note OnRow(const Project& project, Note note) {
    if (note.on == NoteOn::Pipe) return {note.text, NoteOn::Row, note.number};
    if (note.on != NoteOn::Point) return note;
    return {note.text, NoteOn::Row, ShownRow(FirstRowOf(project, note.number))};
}

}  // namespace

ProblemView ShowProblems(Project& project, const TableTexts& texts, const RunRecord* last,
                         const Limits& limits) {
    ProblemView view;
    if (IsUpToDate(last, project)) {
        Outcome outcome = HeldAgainst(limits, *last);
        view = {OutcomeLine(outcome), std::move(outcome.notes)};
    } else {
        view = PresentProblems(project, texts, last != nullptr);
    }
    if (project.settings.Mode != WorkMode::Table) return view;
    for (Note& note : view.notes) note = OnRow(project, std::move(note));
    return view;
}

}  // namespace idrova
