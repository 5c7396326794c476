// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string_view>

namespace idrova {

/// Bytes; several times the text of a project whose tables are full.
constexpr std::size_t kLargestProjectFile = std::size_t{16} * 1024 * 1024;

/// Key lines of the project file that a reader has to know. It passes the others over.
constexpr std::string_view kPumpConstantsKey = "pump constants";
constexpr std::string_view kGivenZerosKey = "given zeros";
constexpr std::string_view kFlowFromEndKey = "flow from end points";
constexpr std::string_view kPipeLossesKey = "pipe losses";
constexpr std::string_view kRowsBelowGapKey = "rows below a gap";
constexpr std::string_view kDescriptionKey = "Project description";

}  // namespace idrova
