// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "results/run_record.h"

namespace idrova {

/// The two figures that a pipe is sized by, as shown beside its flow.
struct SizingTexts {
    std::string velocity;      ///< m/s
    std::string dropPerMetre;  ///< Pa/m, of friction and fittings
    bool operator==(const SizingTexts&) const = default;
};

/// Empty when the run has no results, or none for this pipe.
SizingTexts SizingOf(const RunRecord& record, int pipe);

}  // namespace idrova
