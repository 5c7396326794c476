// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "hydraulics/network_plan.h"
#include "hydraulics/refusal.h"
#include "hydraulics/work_network.h"
#include "model/settings.h"

namespace idrova {

/// The checks before a run. Each returns the first refusal, nothing when the run may go on.

/// A fluid is chosen; the compressible equation for a gas only, at a temperature that there is.
std::optional<Refusal> CheckFluid(const Settings& settings);

/// No drawn pipe has zero length or zero diameter (in a rectangular section: a zero side).
std::optional<Refusal> CheckPipeData(const Settings& settings, const WorkNetwork& work);

/// As many unknowns as equations and known terms, and no more than the solver takes.
std::optional<Refusal> CheckCounts(const NetworkPlan& plan);

/// Where the flow and both pressures of a pipe are given, they agree.
std::optional<Refusal> CheckCoherence(const Settings& settings, const WorkNetwork& work);

}  // namespace idrova
