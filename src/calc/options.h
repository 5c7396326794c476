// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "calc/variant_change.h"
#include "model/settings.h"

namespace idrova {

/// A fluid by its properties, without a database.
struct FluidProperties {
    std::optional<double> density;    ///< kg/m3; of a gas, at 0 degrees Celsius and 101325 Pa
    std::optional<double> viscosity;  ///< dynamic, N s/m2
    double compressibility = 0;       ///< 0 for a liquid
};

/// What the command line asks for.
struct Options {
    std::vector<std::filesystem::path> projects;  ///< at least one
    std::filesystem::path data;  ///< folder of the databases and of the results file

    std::string fluid;           ///< record number or name; empty for none named
    FluidProperties properties;  ///< used when the density is given

    WorkMode mode = WorkMode::Graphic;
    bool noSettings = false;  ///< leave the settings beside the project alone
    // Each of these goes before the settings beside the project.
    std::optional<Section> section;
    std::optional<Equation> equation;
    std::optional<Unit> pressureUnit;
    std::optional<double> roughness;     ///< m
    std::optional<double> temperature;   ///< degrees Celsius
    std::optional<double> basePressure;  ///< bar
    std::optional<std::uint32_t> seed;
    std::vector<VariantChange> changes;  ///< of every project, before it is computed

    bool append = false;
    bool json = false;
    bool noReport = false;
    std::filesystem::path save;  ///< empty when the project is not to be saved
    bool force = false;

    // Of the results; empty when not wanted. Those with the name of a file take one project.
    std::filesystem::path csvFolder;
    std::filesystem::path html;
    std::filesystem::path svg;
    std::filesystem::path inp;
};

/// The options, or the exit status with which the program ends at once: help and version were
/// printed to `out`, what is wrong to `err`.
std::variant<Options, int> ParseOptions(int argc, const char* const* argv, std::ostream& out,
                                        std::ostream& err);

}  // namespace idrova
