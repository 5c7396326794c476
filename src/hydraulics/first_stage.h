// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>

#include "hydraulics/network_plan.h"
#include "hydraulics/stage_result.h"
#include "hydraulics/work_network.h"
#include "model/settings.h"

namespace idrova {

/// Start values of the flows, kg/s, per pipe.
using FlowGuesses = std::array<double, kMaxPipes + 1>;

constexpr int kPassLimit = 50;            ///< the loop ends when it has gone beyond
constexpr float kTotalTolerance = 1e-4F;  ///< on the summed relative residual

/// Called after each pass, with 0 for the residual where none is measured; false stops the run.
using PassReport = std::function<bool(int pass, double residual)>;

/// Where the first stage ended: near the solution, as a rule.
struct FirstStage {
    int passes = 0;
    bool finite = true;
    bool settled = false;  ///< by its own residuals
    bool stopped = false;
    Solution solution;
};

/// Repeats assembly, solve and relaxation until the residuals are small, until no guess moves any
/// more, or until the pass limit.
FirstStage RunFirstStage(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                         const FlowGuesses& start, const PassReport& report);

/// The mean of the given pressures, Pa; 0 when there are none.
double MeanGivenPressure(const WorkNetwork& work);

}  // namespace idrova
