// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "base/message_boxes.h"
#include "hydraulics/refusal.h"

namespace idrova {

constexpr FixedMessage kSelectAFluid{"Select a fluid", "Fluid"};
constexpr FixedMessage kNegativeDensity{"The density of the fluid is negative", "Fluid"};
constexpr FixedMessage kNoViscosity{"The fluid has no viscosity", "Fluid"};
constexpr FixedMessage kNegativeViscosity{"The viscosity of the fluid is negative", "Fluid"};
constexpr FixedMessage kNotCompressible{"The selected fluid is uncompressible",
                                        "Compressibilitynot defined"};
constexpr FixedMessage kTooCold{"The temperature is not above absolute zero (-273.15 °C)",
                                "Calculation data"};
constexpr FixedMessage kChangeDirections{
    "Do you want to change direction to all the flow rates so they are all positive ?",
    "Flow rates direction", BoxIcon::Question, BoxButtons::OkCancel};
constexpr FixedMessage kDoesNotSettle{"The computation does not settle: no results", "Computation"};

/// What the refused run says.
MessageBox RefusalBox(const Refusal& refusal);
/// `cells`: those of the pumps.
MessageBox OutOfRangePumps(const std::vector<int>& cells);
/// `basePressure` in bar.
MessageBox NegativePressures(float basePressure);

}  // namespace idrova
