// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "hydraulics/network_plan.h"
#include "hydraulics/stage_result.h"
#include "hydraulics/work_network.h"
#include "model/settings.h"

namespace idrova {

/// What a run does with its solution.

/// Sets to 0 the unknown flow of every pipe whose ends have the same head within 1e-5 and whose
/// flow is at most 1e-8 of the largest.
void CleanUpZeroFlows(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                      StageResult& result);

/// Flows and pressures into the working network, each component's flow into its record.
void StoreResults(const NetworkPlan& plan, WorkNetwork& work, const StageResult& result);

/// True when a pump's stored flow is within the range of its curve, its limits included.
bool IsInRange(const CellRec& pump);

/// The cells of the pumps whose computed flow is outside the range of their curve.
std::vector<int> PumpsOutOfRange(const WorkNetwork& work);

/// Adds the base pressure to the working pressures of drawn points. Returns the lowest of them in
/// Pa, 0 when none is negative.
float AddBasePressure(const Settings& settings, WorkNetwork& work);

}  // namespace idrova
