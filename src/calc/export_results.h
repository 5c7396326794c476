// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/result.h"
#include "calc/options.h"
#include "model/project.h"
#include "results/run_record.h"

namespace idrova {

/// Writes the files that the options ask for, of a run with results. The failure is of the first
/// that cannot be written; the others are not tried then.
Status ExportResults(const Options& options, const Project& project, const RunRecord& run);

}  // namespace idrova
