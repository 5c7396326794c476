// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hydraulics/network_plan.h"
#include "hydraulics/stage_result.h"
#include "hydraulics/work_network.h"
#include "model/settings.h"

namespace idrova {

/// Holds the solution of `result` against the laws themselves and says so in it. Settled: every
/// pipe and component within 1e-6 of the largest drop plus 1e-9 of the largest head, every junction
/// balanced within 1e-9 of the largest flow, and no gas at the bound of its mean pressure or with
/// an end below absolute zero.
void CheckSolution(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                   StageResult& result);

/// Flows in kg/s that the tolerances on flows refer to.
struct FlowScale {
    double largest = 0;   ///< in the network
    double rounding = 0;  ///< what the rounding of the heads may move
};

FlowScale FlowScaleOf(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                      const Solution& solution);

}  // namespace idrova
