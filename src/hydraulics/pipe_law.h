// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hydraulics/work_network.h"
#include "model/settings.h"

namespace idrova {

/// A pressure difference in Pa that a flow calls for, with its derivatives by the flow in kg/s and
/// by the pressures at a pipe's ends.
struct PressureLaw {
    double value = 0;
    double byFlow = 0;
    double byStart = 0;
    double byEnd = 0;
};

/// p(start) - p(end) of a pipe: friction, the losses of its own fittings, on the velocity in the
/// pipe, and the weight of its column. `flow` in kg/s from the pipe's `FlowFromPoint`, pressures in
/// Pa as the project holds them.
PressureLaw PipeLaw(const Settings& settings, const PipeRec& pipe, double flow, double start,
                    double end);

/// The same at the pipe's given flow, without its sign; the friction is `PipeDrop`'s.
PressureLaw GivenFlowLaw(const Settings& settings, const PipeRec& pipe, double start, double end);

/// `PipeDrop` and what the pipe's own fittings take, Pa, at a flow in kg/s of either sign and a
/// mean absolute pressure in Pa.
double DropWithLosses(const Settings& settings, const PipeRec& pipe, double flow,
                      double meanPressure);

}  // namespace idrova
