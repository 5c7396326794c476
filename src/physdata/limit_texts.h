// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "model/limits.h"

namespace idrova {

/// The limits as shown and typed, pressures in a unit of `pascal` Pa; empty where there is none.
struct LimitTexts {
    std::string velocity, loss, lowestPressure, highestPressure;
};

LimitTexts ShowLimits(const Limits& limits, double pascal);

/// Nothing when some text is neither empty nor a number.
std::optional<Limits> ReadLimits(const LimitTexts& typed, double pascal);

/// In a few words: "velocity 2 m/s, losses 300 Pa/m"; "none" without limits.
std::string LimitWords(const Limits& limits);

}  // namespace idrova
