// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>

#include "table/table_columns.h"

namespace idrova {

/// Columns of results, right of those that are typed.
constexpr int kResultColumns = 5;
constexpr int kShownColumns = kTableColumns + kResultColumns;

/// What the last computation found, beside the rows that it was made of: flow rate in kg/h,
/// velocity in m/s, drop in Pa/m, pressures of the start and the end point.
struct RowResults {
    std::array<std::array<std::string, kResultColumns>, kTableLines + 1> texts;
    std::array<std::array<bool, kResultColumns>, kTableLines + 1> beyond{};  ///< a limit
    bool isEmpty = true;
    bool outOfDate = false;  ///< the table has changed since

    /// `column` from `kTableColumns` on.
    const std::string& At(int row, int column) const { return texts[row][column - kTableColumns]; }
    bool IsBeyond(int row, int column) const { return beyond[row][column - kTableColumns]; }
    bool operator==(const RowResults&) const = default;
};

}  // namespace idrova
