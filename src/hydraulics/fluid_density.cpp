// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/fluid_density.h"

#include <algorithm>

#include "hydraulics/pipe_drop.h"

namespace idrova {
namespace {

constexpr double kLowestMeanPressure = 1000;  ///< Pa

}  // namespace

ByEndPressures MeanPressureAt(const Settings& settings, double start, double end) {
    const double base = kAtmosphere + settings.BasePressure;
    const ByEndPressures mean{base + (start + end) / 2, 0.5, 0.5};
    // Flow empties one end to a vacuum at most: the mean is no less than half of the other end.
    const double least = (base + std::max(start, end)) / 2;
    if (std::max(mean.value, least) <= kLowestMeanPressure) return {kLowestMeanPressure, 0, 0};
    if (mean.value >= least) return mean;
    return start > end ? ByEndPressures{least, 0.5, 0} : ByEndPressures{least, 0, 0.5};
}

double GasDensity(const Settings& settings, double pressure) {
    const double kelvin = settings.FluidTemperature + kCelsiusToKelvin;
    return settings.FluidDensity * (pressure / kAtmosphere) * (kCelsiusToKelvin / kelvin) /
           settings.FluidCompressibility;
}

ByEndPressures DensityAt(const Settings& settings, double start, double end) {
    if (settings.EquationType == Equation::Incompressible) return {settings.FluidDensity, 0, 0};
    const ByEndPressures mean = MeanPressureAt(settings, start, end);
    const double density = GasDensity(settings, mean.value);
    const double byPressure = density / mean.value;
    return {density, byPressure * mean.byStart, byPressure * mean.byEnd};
}

}  // namespace idrova
