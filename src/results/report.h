// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "hydraulics/work_network.h"
#include "model/project.h"

namespace idrova {

/// When the report was made, as it prints it.
struct ReportTime {
    std::string date;
    std::string time;
};

/// The clock's local date and time in a form that no locale changes: 2026-11-22, 21:55:26.
ReportTime CurrentReportTime();

/// The report of the last computation: its settings, the pressures, the pipes, the components.
/// Lines end with carriage return and line feed. Only drawn pipes and points take part, and the
/// components of `work`. `project` is the project's name.
std::string ReportText(const Settings& settings, std::string_view project, const WorkNetwork& work,
                       const ReportTime& when);

}  // namespace idrova
