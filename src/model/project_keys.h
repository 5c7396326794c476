// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "model/project.h"

namespace idrova {

/// Bytes; several times the text of a project whose tables are full.
constexpr std::size_t kLargestProjectFile = std::size_t{16} * 1024 * 1024;

/// Key lines of the project file that a reader has to know. It passes the others over.
constexpr std::string_view kPumpConstantsKey = "pump constants";
constexpr std::string_view kGivenZerosKey = "given zeros";
constexpr std::string_view kFlowFromEndKey = "flow from end points";
constexpr std::string_view kDescriptionKey = "Project description";

/// A column of the table in which a typed zero differs from an empty cell.
struct GivenColumn {
    int column;
    float TableRowRec::*value;
    bool TableRowRec::*given;
};
constexpr std::array<GivenColumn, 3> kGivenColumns = {
    {{2, &TableRowRec::StartPressure, &TableRowRec::P1Given},
     {4, &TableRowRec::EndPressure, &TableRowRec::P2Given},
     {8, &TableRowRec::RowFlowRate, &TableRowRec::FlowGiven}}};

}  // namespace idrova
