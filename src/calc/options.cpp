// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/options.h"

#include <CLI/CLI.hpp>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/number_text.h"
#include "calc/exit_status.h"
#include "hydraulics/pipe_drop.h"
#include "model/version.h"

namespace idrova {
namespace {

using Range = bool (*)(double);

bool Any(double /*number*/) {
    return true;
}
bool Positive(double number) {
    return number > 0;
}
bool NotNegative(double number) {
    return number >= 0;
}
bool AboveAbsoluteZero(double number) {
    return number > -kCelsiusToKelvin;
}

double NumberIn(const std::string& option, const std::string& text, Range range) {
    const auto number = ParseNumber(text);
    if (!number) throw CLI::ValidationError(option, text + " is not a number");
    if (!range(*number)) throw CLI::ValidationError(option, text + " is out of range");
    return *number;
}

VariantChange ChangeIn(const std::string& option, const std::string& text) {
    Result<VariantChange> change = ParseChange(text);
    if (!change) throw CLI::ValidationError(option, change.Error());
    return *change;
}

template <typename Target>
CLI::Option* AddNumber(CLI::App& app, const std::string& option, Target& target,
                       const std::string& help, Range range) {
    const auto store = [option, &target, range](const std::string& text) {
        target = NumberIn(option, text, range);
    };
    return app.add_option_function<std::string>(option, store, help)->type_name("NUMBER");
}

template <typename Value, typename Target>
void AddChoice(CLI::App& app, const std::string& option, Target& target, const std::string& help,
               const std::vector<std::pair<std::string, Value>>& choices) {
    std::string names;
    for (const auto& [name, value] : choices) names += (names.empty() ? "" : "|") + name;
    const auto store = [option, &target, names, choices](const std::string& text) {
        for (const auto& [name, value] : choices) {
            if (name != text) continue;
            target = value;
            return;
        }
        throw CLI::ValidationError(option, text + " is none of " + names);
    };
    app.add_option_function<std::string>(option, store, help)->type_name(names);
}

void AddFluidOptions(CLI::App& app, Options& options) {
    CLI::Option* fluid =
        app.add_option("--fluid", options.fluid, "Fluid of the database (the first one)")
            ->type_name("NUMBER|NAME");
    CLI::Option* density = AddNumber(app, "--density", options.properties.density,
                                     "Density of the fluid, kg/m3", Positive);
    CLI::Option* viscosity = AddNumber(app, "--viscosity", options.properties.viscosity,
                                       "Dynamic viscosity, N s/m2", Positive);
    CLI::Option* compressibility =
        AddNumber(app, "--compressibility", options.properties.compressibility,
                  "Compressibility factor of a gas (0, a liquid)", NotNegative);
    density->needs(viscosity)->excludes(fluid);
    viscosity->needs(density);
    compressibility->needs(density);
}

void AddComputationOptions(CLI::App& app, Options& options) {
    AddChoice<WorkMode>(app, "--mode", options.mode, "What to compute (graphic)",
                        {{"graphic", WorkMode::Graphic}, {"table", WorkMode::Table}});
    app.add_flag("--no-settings", options.noSettings,
                 "Leave the settings beside the project (NAME.settings.json) alone");
    AddNumber(app, "--roughness", options.roughness, "Roughness of the pipes, m (0.0001)",
              NotNegative);
    AddChoice<Section>(app, "--section", options.section, "Section of the pipes (circular)",
                       {{"circular", Section::Circular}, {"rectangular", Section::Rectangular}});
    AddChoice<Equation>(
        app, "--equation", options.equation, "Equation of the pipes (incompressible)",
        {{"incompressible", Equation::Incompressible}, {"compressible", Equation::Compressible}});
    AddNumber(app, "--temperature", options.temperature,
              "Temperature of a compressible fluid, degrees Celsius (0)", AboveAbsoluteZero);
    AddNumber(app, "--base-pressure", options.basePressure, "Base pressure, bar (0)", Any);
    app.add_option("--seed", options.seed, "Repeatable start values of the iteration")
        ->type_name("NUMBER");
    const auto change = [&options](const std::vector<std::string>& texts) {
        for (const std::string& text : texts) options.changes.push_back(ChangeIn("--set", text));
        return true;
    };
    app.add_option("--set", change,
                   "Change a number of the project: pipe:12:diameter_m=0.0689, pipe:N:length_m,\n"
                   "pipe:N:flow_kg_s (given), point:N:pressure_Pa (given); may be repeated")
        ->type_name("WHAT=NUMBER")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

void AddResultOptions(CLI::App& app, Options& options) {
    AddChoice<Unit>(app, "--pressure-unit", options.pressureUnit,
                    "Unit of the report's pressures (bar)",
                    {{"bar", Unit::Bar}, {"mbar", Unit::MilliBar}});
    app.add_flag("--append", options.append, "Add the report to out.dat, do not replace it");
    app.add_flag("--json", options.json, "Print the results as JSON, not the report");
    app.add_flag("--no-report", options.noReport, "Neither print nor write the report");
    CLI::Option* save = app.add_option("--save", options.save, "Write the project with its results")
                            ->type_name("FILE");
    app.add_flag("--force", options.force, "Let --save replace an existing file")->needs(save);
}

void AddExportOptions(CLI::App& app, Options& options) {
    app.add_option("--csv", options.csvFolder,
                   "Write NAME-pipes.csv, NAME-points.csv and NAME-components.csv")
        ->type_name("DIR");
    app.add_option("--html", options.html, "Write a report with the drawing for the browser")
        ->type_name("FILE");
    app.add_option("--svg", options.svg, "Write the drawing")->type_name("FILE");
    app.add_option("--inp", options.inp, "Write the network of a liquid for EPANET")
        ->type_name("FILE");
}

/// What one file can hold of several projects is the last, and a project is not to be replaced.
void CheckFiles(const Options& options) {
    for (const auto& [option, file] :
         {std::pair("--save", options.save), std::pair("--html", options.html),
          std::pair("--svg", options.svg), std::pair("--inp", options.inp)}) {
        if (file.empty()) continue;
        if (options.projects.size() > 1) {
            throw CLI::ValidationError(option, "takes one project, not several");
        }
        std::error_code ignored;
        const bool own = std::filesystem::equivalent(file, options.projects.front(), ignored);
        if (own && file != options.save) {
            throw CLI::ValidationError(option, "would replace the project");
        }
    }
}

/// Each project's tables have its name.
void CheckTables(const Options& options) {
    std::set<std::filesystem::path> names;
    for (const std::filesystem::path& project : options.projects) {
        if (names.insert(project.stem()).second || options.csvFolder.empty()) continue;
        throw CLI::ValidationError(
            "--csv", "two projects are called " + project.stem().string() + ": one folder each");
    }
}

}  // namespace

std::variant<Options, int> ParseOptions(int argc, const char* const* argv, std::ostream& out,
                                        std::ostream& err) {
    Options options;
    CLI::App app("Computes the pressures and flow rates of a fluid distribution network.",
                 "idrova-calc");
    app.set_version_flag("--version", "idrova-calc " + VersionText());
    app.add_option("PROJECT.iv", options.projects, "Projects to compute, one after the other")
        ->required()
        ->type_name("");
    app.add_option("--data", options.data,
                   "Folder of the databases and of out.dat (the current folder)")
        ->type_name("DIR");
    AddFluidOptions(app, options);
    AddComputationOptions(app, options);
    AddResultOptions(app, options);
    AddExportOptions(app, options);
    try {
        app.parse(argc, argv);
        CheckFiles(options);
        CheckTables(options);
    } catch (const CLI::ParseError& error) {
        const bool fine = app.exit(error, out, err) == 0;
        return static_cast<int>(fine ? ExitStatus::Settled : ExitStatus::WrongUse);
    }
    return options;
}

}  // namespace idrova
