// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the sample databases from their readable lists: make_databases LISTS OUTPUT
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "base/file.h"
#include "base/number_text.h"
#include "physdata/fluids.h"
#include "physdata/losses.h"
#include "physdata/pumps.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

using Columns = std::vector<std::string>;

std::string Trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(blanks) - first + 1));
}

/// The columns of a line, separated by ";". None for a blank line and for a comment.
Columns SplitLine(const std::string& line) {
    Columns columns;
    const std::string content = Trimmed(line);
    if (content.empty() || content.front() == '#') return columns;
    std::istringstream stream(content);
    for (std::string column; std::getline(stream, column, ';');) {
        columns.push_back(Trimmed(column));
    }
    return columns;
}

/// A list's columns are the fields of the window in which the record could be typed.
FluidRecord MakeFluid(const Columns& columns) {
    return TypedFluid({.name = columns[0],
                       .density = columns[1],
                       .viscosity = columns[2],
                       .compressibility = columns[3],
                       .specificHeat = columns[4],
                       .conductivity = columns[5]});
}

PumpRecord MakePump(const Columns& columns) {
    return TypedPump({.name = columns[0],
                      .maxPrevalence = columns[1],
                      .minFlow = columns[2],
                      .minPrevalence = columns[3],
                      .maxFlow = columns[4]});
}

LossRecord MakeLoss(const Columns& columns) {
    return TypedLoss({.name = columns[0], .coefficient = columns[1], .fixedDrop = columns[2]});
}

bool AreColumns(const Columns& columns, std::size_t count) {
    if (columns.size() != count) return false;
    for (std::size_t i = 1; i < count; ++i) {
        if (!ParseNumber(columns[i])) return false;
    }
    return true;
}

/// The list as a database; fails with the line that is no record.
template <typename Record>
Result<RecordDb<Record>> ReadList(const fs::path& path, std::size_t columnCount,
                                  Record (*make)(const Columns&)) {
    constexpr std::size_t largestList = 100'000;
    const Result<std::string> text = ReadWholeFile(path, largestList);
    if (!text) return Failure{text.Error()};
    RecordDb<Record> db;
    std::istringstream stream(*text);
    int number = 0;
    for (std::string line; std::getline(stream, line);) {
        ++number;
        const Columns columns = SplitLine(line);
        if (columns.empty()) continue;
        const Failure refused{path.string() + ", line " + GeneralText(number) + ": " + line};
        if (db.IsFull() || !AreColumns(columns, columnCount)) return refused;
        const Record record = make(columns);
        if (!NameFits(record)) return refused;
        db = WithRecord(db, record);
    }
    return db;
}

template <typename Record>
Status MakeDatabase(const fs::path& list, std::size_t columnCount, Record (*make)(const Columns&),
                    const fs::path& folder) {
    const Result<RecordDb<Record>> db = ReadList(list, columnCount, make);
    if (!db) return Failure{db.Error()};
    return WriteWholeFile(folder / Record::kFile, EncodeRecords(*db));
}

Status MakeDatabases(const fs::path& lists, const fs::path& folder) {
    Status made = MakeDatabase(lists / "fluids.txt", 6, MakeFluid, folder);
    if (made) made = MakeDatabase(lists / "pumps.txt", 5, MakePump, folder);
    if (made) made = MakeDatabase(lists / "losses.txt", 3, MakeLoss, folder);
    return made;
}

}  // namespace
}  // namespace idrova

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: make_databases LISTS OUTPUT\n";
        return 2;
    }
    const idrova::Status made = idrova::MakeDatabases(argv[1], argv[2]);
    if (!made) std::cerr << made.Error() << '\n';
    return made ? 0 : 1;
}
