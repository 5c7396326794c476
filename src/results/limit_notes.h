// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "model/limits.h"
#include "results/result_tables.h"
#include "results/run_record.h"

namespace idrova {

/// Every pipe and every point of a run beyond a limit. They do not say that a result is wrong.
std::vector<Note> LimitNotes(const Limits& limits, const RunRecord& record);

/// The outcome of a run with these notes, before what is only a remark.
Outcome HeldAgainst(const Limits& limits, const RunRecord& record);

/// Marks the cells of a table of pipes or points that are beyond a limit.
void MarkBeyond(const Limits& limits, ResultTable& table);

}  // namespace idrova
