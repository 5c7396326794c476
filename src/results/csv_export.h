// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "base/result.h"
#include "results/run_record.h"

namespace idrova {

/// NAME-pipes.csv, NAME-points.csv and NAME-components.csv of a folder.
std::vector<std::filesystem::path> CsvFiles(const std::filesystem::path& folder,
                                            const std::string& name);

/// Writes the tables into `CsvFiles`, as comma separated values in UTF-8: numbers with a period and
/// up to 7 digits, nothing for one that is not finite. Makes the folder when it is missing. The run
/// must have results. The failure names the file.
Status WriteCsvFiles(const RunRecord& run, Unit unit, const std::string& name,
                     const std::filesystem::path& folder);

}  // namespace idrova
