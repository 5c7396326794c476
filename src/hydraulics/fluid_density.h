// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/settings.h"

namespace idrova {

/// A quantity of a pipe's two end pressures, and its derivatives by them.
struct ByEndPressures {
    double value = 0;
    double byStart = 0;
    double byEnd = 0;
};

/// Absolute mean pressure of a pipe's ends in Pa for the gas law, from two pressures as the
/// project holds them; no less than half of the higher end's, nor than 1000 Pa.
ByEndPressures MeanPressureAt(const Settings& settings, double start, double end);

/// Density in kg/m3 of a gas at an absolute pressure in Pa and the fluid's temperature: its
/// molar mass follows from its density at 0 degrees Celsius and 101325 Pa.
double GasDensity(const Settings& settings, double pressure);

/// Density of what flows in a pipe, kg/m3: a gas's at the pipe's mean pressure.
ByEndPressures DensityAt(const Settings& settings, double start, double end);

}  // namespace idrova
