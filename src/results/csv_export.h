// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

#include "base/result.h"
#include "results/run_record.h"

namespace idrova {

/// Writes NAME-pipes.csv, NAME-points.csv and NAME-components.csv, comma separated values in UTF-8,
/// into a folder, which is made when it is missing: numbers with a period and up to 7 digits,
/// nothing for one that is not finite. The run must have results. The failure names the file.
Status WriteCsvFiles(const RunRecord& run, Unit unit, const std::string& name,
                     const std::filesystem::path& folder);

}  // namespace idrova
