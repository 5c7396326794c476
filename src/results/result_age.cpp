// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/result_age.h"

namespace idrova {

bool IsUpToDate(const RunRecord* record, const Project& project) {
    return record != nullptr && record->inputs == InputsOf(project);
}

bool HasCurrentResults(const RunRecord* record, const Project& project) {
    return IsUpToDate(record, project) && record->results.has_value();
}

}  // namespace idrova
