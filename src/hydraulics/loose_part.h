// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hydraulics/network_plan.h"
#include "hydraulics/work_network.h"

namespace idrova {

/// The first drawn pipe from which no point with a given pressure can be reached, through pipes
/// and components; 0 when there is none. The pressures of such a part have no level, which the
/// solver only sees when its last pivot happens to come out as an exact zero.
int PipeWithoutGivenPressure(const NetworkPlan& plan, const WorkNetwork& work);

/// True when flow and both end pressures of a pipe are given: one of the three is too many.
bool IsOverdetermined(const WorkNetwork& work, int number);

}  // namespace idrova
