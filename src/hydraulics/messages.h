// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "base/message_boxes.h"

namespace idrova {

constexpr FixedMessage kSelectAFluid{"Select a fluid", "Fluid"};
constexpr FixedMessage kNotCompressible{"The selected fluid is uncompressible",
                                        "Compressibilitynot defined"};
constexpr FixedMessage kTooCold{"The temperature is not above absolute zero (-273.15 °C)",
                                "Calculation data"};
constexpr FixedMessage kChangeDirections{
    "Do you want to change direction to all the flow rates so they are all positive ?",
    "Flow rates direction", BoxIcon::Question, BoxButtons::OkCancel};
constexpr FixedMessage kDoesNotSettle{"The computation does not settle: no results", "Computation"};

MessageBox ZeroLength(int pipe);
MessageBox ZeroDiameter(int pipe);
MessageBox TooManyUnknowns(int unknowns);
MessageBox UnsolvingSystem(int unknowns, int equations, int knownTerms);
MessageBox IndefiniteSystem(int unknowns, int equations, int knownTerms);
/// `pipes`: the number texts of the pipes, one after the other.
MessageBox IncoherentData(const std::string& pipes);
/// `cells`: each pump's cell as number text followed by " ,".
MessageBox OutOfRangePumps(const std::string& cells);
/// `basePressure` in bar.
MessageBox NegativePressures(float basePressure);

}  // namespace idrova
