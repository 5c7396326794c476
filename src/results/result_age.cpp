// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/result_age.h"

#include "model/drawn_records.h"

namespace idrova {
namespace {

/// What was never computed is 0.
bool HoldsResults(const Project& project) {
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        if (project.FlowUnknown[number] && pipe.FlowRate != 0) return true;
    }
    for (const auto& [number, point] : DrawnPoints(project)) {
        if (project.PressureUnknown[number] && point.Pressure != 0) return true;
    }
    return false;
}

}  // namespace

bool IsUpToDate(const RunRecord* record, const Project& project) {
    return record != nullptr && record->inputs == InputsOf(project);
}

bool HoldsOldResults(const RunRecord* record, const Project& project) {
    if (record == nullptr) return HoldsResults(project);
    return !record->results || !IsUpToDate(record, project);
}

}  // namespace idrova
