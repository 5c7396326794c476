// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "results/html_report.h"
#include "results/run_record.h"

namespace idrova {

enum class ExportForm { Csv, Html, Pdf, Svg, Png, Epanet };

struct ExportKind {
    ExportForm form = ExportForm::Csv;
    std::string_view suffix;   ///< ".csv"
    std::string_view caption;  ///< for people
};

/// Every form, in the order in which a user is offered them.
std::span<const ExportKind> ExportKinds();

/// By the suffix of a file's name, in capitals or not.
std::optional<ExportForm> ExportFormOf(const std::filesystem::path& file);

/// What is exported.
struct Exported {
    ReportSubject subject;
    const RunRecord* run = nullptr;  ///< null before the first computation
    bool outOfDate = false;          ///< the plant has changed since `run`
    std::string drawing{};           ///< as SVG; empty without one
};

/// Fails where there is nothing to write in this form, or only results of a plant that has changed:
/// a file does not turn grey.
Status MayExport(ExportForm form, const Exported& exported);

/// What the export writes for a file name: that file, or for CSV NAME-pipes.csv, NAME-points.csv
/// and NAME-components.csv beside it.
std::vector<std::filesystem::path> ExportFiles(ExportForm form, const std::filesystem::path& file);

/// Writes what may be exported, in a form that needs no desktop: not PDF and PNG. The failure names
/// the file, and leaves an old one as it was.
Status WriteExport(ExportForm form, const Exported& exported, const std::filesystem::path& file);

}  // namespace idrova
