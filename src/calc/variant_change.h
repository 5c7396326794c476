// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "base/result.h"
#include "model/project.h"

namespace idrova {

/// One number of a project that `--set` replaces before the computation.
struct VariantChange {
    enum class Kind { PipeLength, PipeDiameter, PipeFlow, PointPressure };

    std::string text;  ///< before the "=", as it was given
    Kind kind = Kind::PipeLength;
    int number = 0;    ///< of the pipe or point
    double value = 0;  ///< m, m, kg/s, Pa; lengths and diameters are positive
};

/// "pipe:12:diameter_m=0.0689", and likewise `length_m` and `flow_kg_s` of a pipe, `pressure_Pa` of
/// a point. The failure says what is wrong.
Result<VariantChange> ParseChange(std::string_view text);

/// Changes the drawing or the table, as the mode says; a flow or a pressure is given from then on.
/// Fails when there is no such pipe or point.
Status ApplyChange(const VariantChange& change, Project& project);

}  // namespace idrova
