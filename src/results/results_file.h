// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "base/message_boxes.h"
#include "base/result.h"
#include "model/settings.h"

namespace idrova {

/// The results file of a working folder. An empty folder is the current one.
constexpr std::string_view kResultsFile = "out.dat";

/// Replaces the results file by the report or, with `ResultsInSequence`, adds the report at its
/// end; either way a failure leaves the file as it was.
Status StoreReport(const Settings& settings, std::string_view report,
                   const std::filesystem::path& folder);

/// Asks, then hands the report to `print` as plain text.
void PrintReport(const std::string& report, MessageBoxes& boxes,
                 const std::function<void(const std::string&)>& print);

/// Asks, then deletes the results file if there is one.
void DeleteResults(const std::filesystem::path& folder, MessageBoxes& boxes);

/// Starts a program on a file; the failure says why it did not start.
using StartProgram =
    std::function<Status(const std::filesystem::path& program, const std::filesystem::path& file)>;

/// Opens the results file in the configured editor, or says what is missing.
void ShowResults(const std::filesystem::path& folder, MessageBoxes& boxes,
                 const StartProgram& start);

}  // namespace idrova
