// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "hydraulics/work_network.h"
#include "model/settings.h"

namespace idrova {

/// What a run found, pipe by pipe, point by point, component by component, in SI units. Pressures
/// are without the base pressure.

/// A positive flow runs from `from` to `to`.
struct PipeResult {
    int number = 0;
    int from = 0, to = 0;
    bool flowGiven = false;
    double flow = 0;          ///< kg/s
    double volumeFlow = 0;    ///< m3/s; of a gas, at 0 degrees Celsius and 101325 Pa
    double velocity = 0;      ///< m/s, signed as the flow; of a gas, at its density in the pipe
    double reynolds = 0;      ///< as the friction law has it, never negative
    double drop = 0;          ///< pressure at `from` less that at `to`, Pa
    double dropPerMetre = 0;  ///< Pa/m, signed as the drop; without the weight of the column
    double diameter = 0;      ///< m; side a of a rectangular section
    double sideB = 0;         ///< m; 0 in a circular section
    double length = 0;        ///< m
    double lossSum = 0;       ///< of its own fittings
};

struct PointResult {
    int number = 0;
    bool given = false;
    double pressure = 0;           ///< Pa
    double height = 0;             ///< m, of the first pipe that ends here
    std::optional<double> head{};  ///< m, height and pressure together; of a liquid
};

struct ComponentResult {
    int cell = 0;
    std::string name;
    bool isPump = false;
    double flow = 0;    ///< kg/s; of a pump in its delivery direction, else not negative
    double change = 0;  ///< Pa: the rise of a pump, the drop of a loss
    double minFlow = 0, maxFlow = 0;  ///< kg/s, the range of a pump
    bool inRange = true;
};

/// The pipe must be drawn and end in points of the network.
PipeResult ResultOfPipe(const Settings& settings, const WorkNetwork& results, int number);

/// Of all that is drawn, by number; of the components that are placed, by cell.
std::vector<PipeResult> PipeResults(const Settings& settings, const WorkNetwork& results);
std::vector<PointResult> PointResults(const Settings& settings, const WorkNetwork& results);
std::vector<ComponentResult> ComponentResults(const WorkNetwork& results);

}  // namespace idrova
