// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>

#include "hydraulics/network_plan.h"
#include "hydraulics/stage_result.h"
#include "hydraulics/work_network.h"
#include "model/project.h"

namespace idrova {

/// Start values of the flows, kg/s, per pipe.
using FlowGuesses = std::array<double, kMaxPipes + 1>;

constexpr int kPassLimit = 50;            ///< the loop ends when it has gone beyond
constexpr float kTotalTolerance = 1e-4F;  ///< on the summed relative residual

using PassReport = std::function<void(int pass, double residual)>;

/// Repeats assembly, solve and relaxation until the pipe laws are met, until no guess moves any
/// more, or until the pass limit. Allocates nothing inside the loop.
StageResult RunStage(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                     const FlowGuesses& start, ComponentRows rows, const PassReport& report);

}  // namespace idrova
