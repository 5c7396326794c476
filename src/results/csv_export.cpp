// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/csv_export.h"

#include <array>
#include <cstddef>

#include "base/file.h"
#include "base/markup_text.h"
#include "base/number_text.h"
#include "results/result_tables.h"

namespace idrova {
namespace {

std::string FieldOf(const ResultCell& cell) {
    if (const auto* number = std::get_if<double>(&cell)) return PlainText(*number);
    return CsvField(std::get<std::string>(cell));
}

/// A line with the keys of the columns, then a line a row.
std::string CsvText(const ResultTable& table) {
    std::string text;
    const char* comma = "";
    for (const ResultColumn& column : table.columns) {
        text += comma + CsvField(column.key);
        comma = ",";
    }
    for (const ResultRow& row : table.rows) {
        comma = "\n";
        for (const ResultCell& cell : row.cells) {
            text += comma + FieldOf(cell);
            comma = ",";
        }
    }
    return text + "\n";
}

}  // namespace

std::vector<std::filesystem::path> CsvFiles(const std::filesystem::path& folder,
                                            const std::string& name) {
    return {folder / (name + "-pipes.csv"), folder / (name + "-points.csv"),
            folder / (name + "-components.csv")};
}

Status WriteCsvFiles(const RunRecord& run, Unit unit, const std::string& name,
                     const std::filesystem::path& folder) {
    std::error_code ignored;  // writing tells
    if (!folder.empty()) std::filesystem::create_directories(folder, ignored);
    const std::array<ResultTable, 3> tables = {PipeTable(run.settings, *run.results),
                                               PointTable(run.settings, *run.results, unit),
                                               ComponentTable(*run.results)};
    const std::vector<std::filesystem::path> files = CsvFiles(folder, name);
    for (std::size_t i = 0; i < tables.size(); ++i) {
        Status written = WriteWholeFile(files[i], CsvText(tables[i]));
        if (!written) return written;
    }
    return Done{};
}

}  // namespace idrova
