// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hydraulics/network_plan.h"
#include "hydraulics/work_network.h"
#include "model/settings.h"

namespace idrova {

/// Whether the given values determine every flow and pressure: none contradicts or repeats others,
/// and none is missing elsewhere for it. As every law rises with its flow, this depends on what is
/// joined and given alone; it is asked of the network with all resistances equal, whose pivots lie
/// close together unless one is 0.
bool HasUniqueSolution(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work);

}  // namespace idrova
