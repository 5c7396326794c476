// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "hydraulics/network_plan.h"
#include "hydraulics/stage_result.h"
#include "hydraulics/work_network.h"
#include "model/settings.h"

namespace idrova {

/// Where Newton's method ended on all laws at once.
struct ClosingStage {
    int passes = 0;
    double misfit = 0;  ///< root of the summed squares of the laws, Pa; infinite when the solution
                        ///< is not finite
    bool stopped = false;
    Solution solution;
};

/// Called after each pass; false stops the stage.
using KeepOn = std::function<bool(int pass)>;

/// Newton's method on the laws of all pipes and components, the balances and the given values,
/// from `start`. The first step is whole, a later one halved until the misfit falls. Ends when a
/// whole step moves nothing by more than 1e-8 of the largest, when no step improves, or after 50
/// passes.
ClosingStage RunClosingStage(const Settings& settings, const NetworkPlan& plan,
                             const WorkNetwork& work, Solution start, const KeepOn& keepOn);

/// 1 m/s along every pipe's reference direction, and the mean of the given pressures.
Solution PlainStart(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work);

}  // namespace idrova
