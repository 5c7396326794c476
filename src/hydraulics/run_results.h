// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "base/message_boxes.h"
#include "hydraulics/first_stage.h"
#include "hydraulics/network_plan.h"
#include "hydraulics/work_network.h"
#include "model/project.h"

namespace idrova {

/// What a run does with its solution.

/// Sets to 0 the unknown flow of every pipe whose ends have the same head within 1e-5 and whose
/// flow is at most 1e-8 of the largest.
void CleanUpZeroFlows(const Project& project, const NetworkPlan& plan, const WorkNetwork& work,
                      StageResult& result);

/// Flows and pressures into the working copy and the components' cells; with `intoProject` into
/// the project's pipes and points too.
void StoreResults(Project& project, const NetworkPlan& plan, WorkNetwork& work,
                  const StageResult& result, bool intoProject);

/// What the user should know of the data and the solution, a sentence each. To be called before
/// the results replace the given values.
std::vector<std::string> ResultNotes(const Project& project, const NetworkPlan& plan,
                                     const WorkNetwork& work, const StageResult& result);

/// A share in percent: "3 %", below one percent with two decimals: "0.04 %".
std::string PercentText(double share);

/// Lists the pumps whose stored flow is outside the range of their curve.
void CheckWorkingPoints(const Project& project, const NetworkPlan& plan, MessageBoxes& boxes);

/// True when a pump's stored flow is within the range of its curve, its limits included.
bool IsInRange(const CellRec& pump);

/// Adds the base pressure to the working pressures; when some are negative, offers a new one.
void AddBasePressure(Project& project, WorkNetwork& work, MessageBoxes& boxes);

}  // namespace idrova
