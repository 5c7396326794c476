// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace idrova {

constexpr int kTableColumns = 12;
constexpr int kTableLines = 100;  ///< line 1 is the header

namespace table_column {
constexpr int kNumber = 0;
constexpr int kStartPoint = 1;
constexpr int kStartPressure = 2;
constexpr int kEndPoint = 3;
constexpr int kEndPressure = 4;
constexpr int kNominalSize = 5;
constexpr int kDiameter = 6;
constexpr int kLength = 7;
constexpr int kFlowRate = 8;
constexpr int kZ1 = 9;
constexpr int kZ2 = 10;
constexpr int kLossSum = 11;
}  // namespace table_column

struct TableColumn {
    std::string_view header;
    int width;  ///< screen units
};

constexpr std::array<TableColumn, kTableColumns> kTableColumnList = {{{"nr.", 350},
                                                                      {"da", 500},
                                                                      {"P1", 800},
                                                                      {"a", 500},
                                                                      {"P2", 800},
                                                                      {"diameter", 800},
                                                                      {"diameter [mm]", 1100},
                                                                      {"length [m]", 1100},
                                                                      {"flow rate [kg/h]", 1100},
                                                                      {"z1 [m]", 750},
                                                                      {"z2 [m]", 750},
                                                                      {"ΣK", 500}}};
constexpr int kTableRowHeight = 300;  ///< screen units

/// The number that the table shows beside a row: that of the row's pipe.
constexpr int ShownRow(int row) {
    return row - 1;
}

/// Where the user stands in the table: the current cell, counted from 0 as the cells on the screen
/// are, and how far ScrX and ScrY are scrolled.
struct TablePlace {
    int line = 0;
    int column = table_column::kStartPoint;
    int scrolledColumns = 0;
    int scrolledLines = 0;
};

/// Light red (0xRRGGBB), of an empty cell that stands for a value to compute.
constexpr std::uint32_t kToComputeColour = 0xFF8080;

constexpr bool IsPressureColumn(int column) {
    return column == table_column::kStartPressure || column == table_column::kEndPressure;
}

/// Whether empty cells of the column stand for values to compute.
constexpr bool EmptyMeansUnknown(int column) {
    return IsPressureColumn(column) || column == table_column::kFlowRate;
}

}  // namespace idrova
