// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/limits.h"
#include "results/run_record.h"
#include "table/row_results.h"

namespace idrova {

/// The results of a run of the table, pressures in the unit of the panels. A row that has other
/// points by now shows none. Empty without a record, and for a run that has no results.
RowResults ShowRowResults(const Project& project, const RunRecord* record, const Limits& limits);

}  // namespace idrova
