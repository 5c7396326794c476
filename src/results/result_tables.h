// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "hydraulics/note.h"
#include "hydraulics/work_network.h"
#include "model/settings.h"

namespace idrova {

/// The results of a run as tables: what windows, CSV files and the HTML report show alike.

/// A number in the unit of its column, or a text. One that is not finite is shown empty.
using ResultCell = std::variant<double, std::string>;

struct ResultColumn {
    std::string_view key;      ///< in files: "flow_kg_h"
    std::string_view heading;  ///< for people: "Flow"
    std::string_view unit;     ///< "kg/h"; empty without one
    int decimals = 0;          ///< that people are shown
};

struct ResultRow {
    int number = 0;  ///< of the pipe or point, or the component's cell
    std::vector<ResultCell> cells;
    std::vector<std::size_t> beyond{};  ///< columns whose value is beyond a limit
};

struct ResultTable {
    NoteOn about = NoteOn::Network;  ///< what a row is of: pipe, point or cell
    std::vector<ResultColumn> columns;
    std::vector<ResultRow> rows;
};

ResultTable PipeTable(const Settings& settings, const WorkNetwork& results);
/// Pressures in Pa and in bar or mbar, as `unit` says.
ResultTable PointTable(const Settings& settings, const WorkNetwork& results, Unit unit);
ResultTable ComponentTable(const WorkNetwork& results);

/// With the decimals of its column.
std::string ShownText(const ResultColumn& column, const ResultCell& cell);

}  // namespace idrova
