// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "hydraulics/network_plan.h"
#include "model/settings.h"

namespace idrova {

struct HeadCurvePoint {
    double flow = 0;  ///< kg/s in the delivery direction
    double head = 0;  ///< m
};

/// A pump that has the flow `working` (kg/s, in its delivery direction), as EPANET takes it:
/// without flow, at the working point, at the end of the range. The flow rises and the head falls
/// from each to the next, whatever the pump's own curve does.
std::array<HeadCurvePoint, 3> HeadCurve(const Settings& settings, const Component& pump,
                                        const PipeRec& pipeA, double working);

}  // namespace idrova
