// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hydraulics/network_plan.h"
#include "hydraulics/network_system.h"
#include "hydraulics/stage_result.h"
#include "hydraulics/work_network.h"
#include "model/project.h"

namespace idrova {

constexpr double kPipeTolerance = 1e-4;          ///< on a pipe's own relative residual
constexpr double kMeanPressureTolerance = 1e-6;  ///< on the last move of a mean pressure, relative

/// Holds the last solution of a stage against the laws themselves, whatever the passes made of
/// it, and says so in `result`: each pipe, each component, the balance of the junctions. Where
/// nothing can move, the flows become 0.
void CheckSolution(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                   const PassState& state, StageResult& result);

}  // namespace idrova
