// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <numbers>

#include "model/project.h"

namespace idrova {

/// The pi of every circular area in the program, four decimals.
constexpr double kPi = 3.1415;

constexpr double kAtmosphere = kPascalPerBar;  ///< Pa absolute, where a gauge pressure is 0
constexpr double kCelsiusToKelvin = 273.15;

constexpr double kPerLog = 4 / std::numbers::ln10;  ///< 4 log10(x), as Colebrook has it, over ln(x)

/// Natural logarithm over ln 10.
double Log10(double x);

struct SectionSize {
    double area = 0;               ///< m2
    double hydraulicDiameter = 0;  ///< m
};

/// Flow area and hydraulic diameter of a pipe of diameter `d1` or sides `d1` x `d2` (m). A
/// rectangle counts as the circle of Huebscher's equal-friction diameter (1948), area included.
SectionSize SectionGeometry(const Settings& settings, double d1, double d2);

/// Of a pipe, by its own sizes.
SectionSize SectionOf(const Settings& settings, const PipeRec& pipe);

/// Reynolds number of a mass flow (kg/s), never negative.
double ReynoldsNumber(const Settings& settings, const SectionSize& section, double flow);

/// Fanning friction factor at a mass flow that is not 0 (kg/s): below Re 5000 one explicit formula
/// (no separate laminar law; it has a pole near Re 10), from there on Colebrook's equation (1939)
/// by relaxed fixed-point iteration.
double FrictionFactor(const Settings& settings, double d1, double d2, double flow);

/// Frictional pressure drop of a pipe in Pa, not negative, without height; 0 when the flow is 0.
/// `flow` in kg/s, its sign does not matter. Lengths in m. Incompressible: Fanning's equation.
/// Compressible: the isothermal law 2 f (L/Dh) (W/A)^2 Z R T / (M pm) at the mean absolute
/// pressure `meanPressure` (Pa) of the pipe's two ends, Z the fluid's compressibility, T the
/// fluid's temperature, M from its density at 0 degrees Celsius and 101325 Pa.
double PipeDrop(const Settings& settings, double d1, double d2, double flow, double length,
                double meanPressure);

}  // namespace idrova
