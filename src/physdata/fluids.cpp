// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/fluids.h"

#include "base/number_text.h"
#include "physdata/messages.h"

namespace idrova {
namespace {

std::optional<std::string> KinematicViscosity(const FluidFields& fields, std::string_view pattern) {
    const double density = ReadNumber(fields.density);
    if (density == 0) return std::nullopt;
    return FormatNumber(ReadNumber(fields.viscosity) / density, pattern);
}

}  // namespace

void ReadFields(RecordReader& reader, FluidRecord& fluid) {
    fluid.density = reader.Single();
    fluid.viscosity = reader.Single();
    fluid.compressibility = reader.Single();
    fluid.specificHeat = reader.Single();
    fluid.conductivity = reader.Single();
    fluid.userDefined = reader.Int16();
}

void WriteFields(RecordWriter& writer, const FluidRecord& fluid) {
    writer.Single(fluid.density)
        .Single(fluid.viscosity)
        .Single(fluid.compressibility)
        .Single(fluid.specificHeat)
        .Single(fluid.conductivity)
        .Int16(fluid.userDefined);
}

bool LoadFluids(FluidDb& db, const std::filesystem::path& folder, MessageBoxes& boxes) {
    return LoadRecords(db, folder, kFluidsTitle, boxes);
}

void SetCurrentFluid(Settings& settings, const FluidRecord& fluid) {
    settings.FluidDensity = DecimalDouble(fluid.density);
    settings.FluidViscosity = DecimalDouble(fluid.viscosity);
    settings.FluidCompressibility = DecimalDouble(fluid.compressibility);
    settings.FluidName = fluid.name;
}

std::string_view PlainFluidName(std::string_view name) {
    const std::size_t end = name.find("] ");
    const bool numbered = name.starts_with('[') && end != std::string_view::npos &&
                          name.find_first_not_of("0123456789", 1) == end;
    return numbered ? name.substr(end + 2) : name;
}

void LoadCurrentFluid(Settings& settings, FluidDb& db, const std::filesystem::path& folder,
                      MessageBoxes& boxes) {
    LoadFluids(db, folder, boxes);
    SetCurrentFluid(settings, db.Holds(1) ? db[1] : FluidRecord{});
}

FluidFields ShowFluid(const FluidRecord& fluid) {
    return {.name = fluid.name,
            .density = GeneralText(fluid.density),
            .viscosity = FormatNumber(fluid.viscosity, "0.000E+0"),
            .compressibility = GeneralText(fluid.compressibility),
            .specificHeat = GeneralText(fluid.specificHeat),
            .conductivity = GeneralText(fluid.conductivity)};
}

FluidRecord TypedFluid(const FluidFields& fields) {
    return {.name = fields.name,
            .density = ToSingle(ReadNumber(fields.density)),
            .viscosity = ToSingle(ReadNumber(fields.viscosity)),
            .compressibility = ToSingle(ReadNumber(fields.compressibility)),
            .specificHeat = ToSingle(ReadNumber(fields.specificHeat)),
            .conductivity = ToSingle(ReadNumber(fields.conductivity))};
}

std::optional<std::string> KinematicViscosityOnChange(const FluidFields& fields) {
    return KinematicViscosity(fields, "0.00E+0");
}

std::optional<std::string> KinematicViscosityOnClick(const FluidFields& fields) {
    return KinematicViscosity(fields, "0.000E+0");
}

std::string FluidPropertyLabel(const Settings& settings) {
    return StrText(ToSingle(settings.FluidDensity)) + " kg/mc ; " +
           FormatNumber(settings.FluidViscosity, "0.000E-0") + " Ns/mq";
}

}  // namespace idrova
