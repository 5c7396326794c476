// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace idrova {

enum class WorkMode : std::int16_t { Graphic = 1, Table = 2, SinglePipe = 3 };
enum class Section : std::int16_t { Circular = 1, Rectangular = 2 };
enum class Unit : std::int16_t { Bar = 1, MilliBar = 2 };
enum class Equation : std::int16_t { Incompressible = 1, Compressible = 2 };

/// What the program calls one bar, in Pa: the standard atmosphere.
constexpr float kPascalPerBar = 101325.0F;
constexpr float kPascalPerMilliBar = 101.325F;
constexpr double kSecondsPerHour = 3600.0;
constexpr double kMillimetresPerMetre = 1000.0;
constexpr double kGravity = 9.81;  ///< m/s2

/// The settings of the running program. None of them travels with a project file.
struct Settings {
    WorkMode Mode = WorkMode::Graphic;
    Section SectionType = Section::Circular;
    double Roughness = 0.0001;  ///< absolute roughness of all pipes, m
    Unit PressureUnit = Unit::Bar;
    float PressureUnitFactor = kPascalPerBar;  ///< Pa for one displayed unit
    float BasePressure = 0;                    ///< Pa
    Equation EquationType = Equation::Incompressible;
    float FluidTemperature = 0;       ///< degrees Celsius, as typed
    double FluidDensity = 0;          ///< kg/m3; of a gas, at 0 degrees Celsius and 101325 Pa
    double FluidViscosity = 0;        ///< dynamic, N s/m2
    double FluidCompressibility = 0;  ///< 0 marks a liquid; else the compressibility factor Z
    std::string FluidName;            ///< as shown on the command panel
    bool ResultsInSequence = false;   ///< reports are appended to the results file

    bool operator==(const Settings&) const = default;
};

}  // namespace idrova
