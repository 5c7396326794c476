// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hydraulics/network_plan.h"
#include "model/project.h"

namespace idrova {

/// How the equations of pumps and losses are linearised.
enum class ComponentRows {
    Lagged,  ///< value at the flow of the pass before; a loss drops along its pipe's reference
    Sloped,  ///< tangent at that flow; a loss opposes the flow, a pump never rises when it is
             ///< run backwards
};

/// p(high) - p(low) of a component in Pa, and its derivative by the flow of pipe A (Pa s/kg).
struct PressureJump {
    double value = 0;
    double slope = 0;
};

/// At the flow of pipe A (kg/s, signed from its reference point). Pump: its curve at the flow in
/// the delivery direction. Loss: coefficient times the dynamic pressure in pipe A, or its fixed
/// drop. A cell whose component was deleted joins its pieces: 0.
PressureJump JumpAt(const Settings& settings, const CellRec& cell, const Component& component,
                    const PipeRec& pipeA, double flow, ComponentRows rows);

}  // namespace idrova
