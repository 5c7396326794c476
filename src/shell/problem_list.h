// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "hydraulics/note.h"
#include "model/limits.h"
#include "model/project.h"
#include "results/run_record.h"
#include "table/table_texts.h"

namespace idrova {

/// What the list of problems shows.
struct ProblemView {
    std::string caption;
    std::vector<Note> notes;  ///< in table mode about rows

    bool operator==(const ProblemView&) const = default;
};

/// The notes of the last run, limits included, while they belong to the plant, else what keeps the
/// plant from being computed now. `last` is null when nothing was computed in this mode. Recounts
/// `numins`.
ProblemView ShowProblems(Project& project, const TableTexts& texts, const RunRecord* last,
                         const Limits& limits);

}  // namespace idrova
