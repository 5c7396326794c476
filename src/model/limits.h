// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

namespace idrova {

/// What a plant is sized by, and its results are held against. Nothing where there is no limit.
struct Limits {
    std::optional<double> velocity{};         ///< highest, m/s
    std::optional<double> loss{};             ///< highest, Pa/m
    std::optional<double> lowestPressure{};   ///< Pa, without the base pressure
    std::optional<double> highestPressure{};  ///< Pa, without the base pressure

    bool operator==(const Limits&) const = default;
};

constexpr bool IsAbove(double value, const std::optional<double>& limit) {
    return limit && value > *limit;
}

constexpr bool IsBeyond(const Limits& limits, double pressure) {
    return IsAbove(pressure, limits.highestPressure) ||
           (limits.lowestPressure && pressure < *limits.lowestPressure);
}

}  // namespace idrova
