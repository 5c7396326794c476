// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hydraulics/network_plan.h"
#include "hydraulics/pipe_law.h"
#include "model/project.h"

namespace idrova {

/// p(high) - p(low) of a component in Pa as the first stage has it, at the flow of pipe A (kg/s,
/// signed from its reference point) of the pass before. Pump: its curve at the flow in the delivery
/// direction. Loss: coefficient times the dynamic pressure in pipe A, or its fixed drop, along the
/// pipe's reference direction. A cell whose component was deleted joins its pieces: 0.
double LaggedJump(const Settings& settings, const Component& component, const PipeRec& pipeA,
                  double flow);

/// p(high) - p(low) of a component at the flow of its pipe A (kg/s, signed from its reference
/// point) and the pressures at that pipe's ends, with the derivatives by all three. A pump gives
/// its curve in the delivery direction, and its highest rise below the flow of that rise and when
/// it is run backwards. A loss opposes the flow; a fixed drop grows up to `FullDropFlow`. A cell
/// whose component was deleted joins its pieces: 0.
PressureLaw ComponentLaw(const Settings& settings, const Component& component, const PipeRec& pipeA,
                         double flow, double start, double end);

/// A pump whose curve somewhere rises with the flow: it may have two working points.
bool OpensUpwards(const CellRec& pump);

/// The flow in kg/s from which a fixed drop has its value: a hundredth of the flow at Re 50 of
/// its pipe A. Below, it has more than enough to hold the flow still.
double FullDropFlow(const Settings& settings, const PipeRec& pipeA);

}  // namespace idrova
