// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hydraulics/pipe_drop.h"

namespace idrova {

/// A law at one flow, and its derivative by that flow.
struct LawAt {
    double value = 0;
    double slope = 0;
};

/// Reynolds number below which the drop is proportional to the flow.
constexpr double kCreepingReynolds = 50;

/// Mass flow in kg/s at a Reynolds number.
double FlowAtReynolds(const Settings& settings, const SectionSize& section, double reynolds);

/// Frictional drop times density, Pa kg/m3, of a length in m at a mass flow in kg/s of either sign.
/// The friction factor of `FrictionFactor` made a law with one flow for each drop: odd, continuous
/// and rising. Below Re 50 the drop is proportional to the flow, a straight line joins the explicit
/// formula at Re 4950 to Colebrook's at 5050, and Colebrook's equation is solved to rounding.
LawAt FrictionLaw(const Settings& settings, const SectionSize& section, double length, double flow);

}  // namespace idrova
