// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "results/run_record.h"

namespace idrova {

/// True when the record of the last run, null for none, was made of the project as it is.
bool IsUpToDate(const RunRecord* record, const Project& project);

/// True when computed values of the project are not those of an up-to-date record. Without a
/// record, as after a file was opened, nothing tells what they were computed from.
bool HoldsOldResults(const RunRecord* record, const Project& project);

}  // namespace idrova
