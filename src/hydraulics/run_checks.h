// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_boxes.h"
#include "hydraulics/network_plan.h"
#include "hydraulics/work_network.h"
#include "model/project.h"

namespace idrova {

/// The checks before a run. Each says its message and returns false when the run must stop.

bool FluidIsChosen(const Settings& settings, MessageBoxes& boxes);

/// The compressible equation is chosen for a gas only, at a temperature that there is.
bool GasLawApplies(const Settings& settings, MessageBoxes& boxes);

/// No drawn pipe has zero length or zero diameter (in a rectangular section: a zero side).
bool PipeDataAreComplete(const Project& project, const WorkNetwork& work, MessageBoxes& boxes);

/// As many unknowns as equations and known terms, and no more than the solver takes.
bool CountsAreBalanced(const NetworkPlan& plan, MessageBoxes& boxes);

/// Where the flow and both pressures of a pipe are given, they agree.
bool GivenDataAreCoherent(const Project& project, const WorkNetwork& work, MessageBoxes& boxes);

}  // namespace idrova
