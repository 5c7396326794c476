// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "results/run_record.h"

namespace idrova {

/// What a report says of its project.
struct ReportSubject {
    std::string name;         ///< full path of the file, or `kNewProject`
    std::string description;  ///< may be empty
    Unit pressureUnit = Unit::Bar;
};

/// One page of XHTML in UTF-8 for the browser or the printer: project, drawing, settings, outcome
/// with its notes, and the tables of results. `drawing` is an SVG picture; empty without one. The
/// run must have results.
std::string HtmlReport(const ReportSubject& subject, const RunRecord& run,
                       std::string_view drawing);

}  // namespace idrova
