// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/export_results.h"

#include <algorithm>
#include <array>

#include "base/assertion.h"
#include "base/file.h"
#include "results/csv_export.h"
#include "results/epanet_input.h"
#include "results/messages.h"

namespace idrova {
namespace {

constexpr std::array<ExportKind, 6> kKinds = {{
    {ExportForm::Html, ".html", "Report for the browser"},
    {ExportForm::Pdf, ".pdf", "Report on paper"},
    {ExportForm::Csv, ".csv", "Tables, comma separated"},
    {ExportForm::Svg, ".svg", "Drawing, vector picture"},
    {ExportForm::Png, ".png", "Drawing, pixel picture"},
    {ExportForm::Epanet, ".inp", "EPANET input"},
}};

bool SameLetter(char one, char other) {
    const auto lower = [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    };
    return lower(one) == lower(other);
}

bool IsPicture(ExportForm form) {
    return form == ExportForm::Svg || form == ExportForm::Png;
}

}  // namespace

std::span<const ExportKind> ExportKinds() {
    return kKinds;
}

std::optional<ExportForm> ExportFormOf(const std::filesystem::path& file) {
    const std::string suffix = file.extension().string();
    const auto kind = std::ranges::find_if(kKinds, [&](const ExportKind& candidate) {
        return std::ranges::equal(suffix, candidate.suffix, SameLetter);
    });
    return kind == kKinds.end() ? std::nullopt : std::optional(kind->form);
}

Status MayExport(ExportForm form, const Exported& exported) {
    if (IsPicture(form)) {
        if (exported.drawing.empty()) return Failure{std::string(kNoDrawingToExport)};
        return Done{};
    }
    if (exported.run == nullptr || !exported.run->results) {
        return Failure{std::string(kNoResultsToExport)};
    }
    if (exported.outOfDate) return Failure{std::string(kOldResultsToExport)};
    return Done{};
}

std::vector<std::filesystem::path> ExportFiles(ExportForm form, const std::filesystem::path& file) {
    if (form != ExportForm::Csv) return {file};
    return CsvFiles(file.parent_path(), file.stem().string());
}

Status WriteExport(ExportForm form, const Exported& exported, const std::filesystem::path& file) {
    Status may = MayExport(form, exported);
    if (!may) return may;
    const ReportSubject& subject = exported.subject;
    switch (form) {
        case ExportForm::Csv:
            return WriteCsvFiles(*exported.run, subject.pressureUnit, file.stem().string(),
                                 file.parent_path());
        case ExportForm::Html:
            return WriteWholeFile(file, HtmlReport(subject, *exported.run, exported.drawing));
        case ExportForm::Svg:
            return WriteWholeFile(file, exported.drawing);
        case ExportForm::Epanet: {
            const Result<std::string> text =
                EpanetInput(*exported.run, subject.name, subject.description);
            return text ? WriteWholeFile(file, *text) : Failure{text.Error()};
        }
        case ExportForm::Pdf:
        case ExportForm::Png:
            break;
    }
    Assert(false);
    return Done{};
}

}  // namespace idrova
