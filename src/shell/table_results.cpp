// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/table_results.h"

#include <cmath>

#include "base/number_text.h"
#include "results/network_results.h"
#include "results/result_age.h"

namespace idrova {
namespace {

bool HaveSamePoints(const TableRowRec& one, const TableRowRec& other) {
    return one.StartPoint == other.StartPoint && one.EndPoint == other.EndPoint;
}

}  // namespace

RowResults ShowRowResults(const Project& project, const RunRecord* record, const Limits& limits) {
    RowResults shown;
    if (record == nullptr || !record->results) return shown;
    shown.isEmpty = false;
    shown.outOfDate = !IsUpToDate(record, project);
    const WorkNetwork& results = *record->results;
    const auto pressure = [&](int point) {
        const Settings& settings = project.settings;
        return FixedText(double{results.WorkPoints[point].Pressure} / settings.PressureUnitFactor,
                         settings.PressureUnit == Unit::Bar ? 4 : 1);
    };
    for (int pipe = 1; pipe <= results.WorkPipeCount; ++pipe) {
        const int row = kFirstTableRow + pipe - 1;
        const TableRowRec& data = project.TableRows[row];
        if (!HaveSamePoints(record->inputs.rows[row], data)) continue;
        const PipeResult found = ResultOfPipe(record->settings, results, pipe);
        shown.texts[row] = {FixedText(found.flow * kSecondsPerHour, 1),
                            FixedText(found.velocity, 3), FixedText(found.dropPerMetre, 2),
                            pressure(data.StartPoint), pressure(data.EndPoint)};
        const auto isBeyond = [&](int point) {
            return IsBeyond(limits, results.WorkPoints[point].Pressure);
        };
        shown.beyond[row] = {false, IsAbove(std::abs(found.velocity), limits.velocity),
                             IsAbove(std::abs(found.dropPerMetre), limits.loss),
                             isBeyond(data.StartPoint), isBeyond(data.EndPoint)};
    }
    return shown;
}

}  // namespace idrova
