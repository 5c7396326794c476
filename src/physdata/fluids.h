// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/message_boxes.h"
#include "model/settings.h"
#include "physdata/record_db.h"

namespace idrova {

/// One fluid of the file "fluidi.dat".
struct FluidRecord {
    static constexpr std::string_view kFile = "fluidi.dat";
    static constexpr std::size_t kNameLimit = 26;

    std::string name;
    float density = 0;             ///< kg/m3; of a gas, at 0 degrees Celsius and 101325 Pa
    float viscosity = 0;           ///< dynamic, N s/m2
    float compressibility = 0;     ///< 0 for a liquid, else the compressibility factor Z
    float specificHeat = 0;        ///< J/(kg K); kept and shown only
    float conductivity = 0;        ///< W/(m K); kept and shown only
    std::int16_t userDefined = 0;  ///< -1, or 0 for a predefined fluid

    bool operator==(const FluidRecord&) const = default;
};

using FluidDb = RecordDb<FluidRecord>;

void ReadFields(RecordReader& reader, FluidRecord& fluid);
void WriteFields(RecordWriter& writer, const FluidRecord& fluid);

/// See `LoadRecords`.
bool LoadFluids(FluidDb& db, const std::filesystem::path& folder, MessageBoxes& boxes);

/// Makes `fluid` the current one under its name alone. Each property becomes the double of the
/// same decimal text.
void SetCurrentFluid(Settings& settings, const FluidRecord& fluid);

/// The name of a current fluid without the number of its record, "[3] ".
std::string_view PlainFluidName(std::string_view name);

/// At start-up: loads the database and makes its first fluid the current one; without one, the
/// properties are 0 and the name is empty.
void LoadCurrentFluid(Settings& settings, FluidDb& db, const std::filesystem::path& folder,
                      MessageBoxes& boxes);

/// The texts of the fluid window's fields, as shown and as typed.
struct FluidFields {
    std::string name;             ///< `Combo1`
    std::string density;          ///< `Text1`, kg/m3
    std::string viscosity;        ///< `Text6`, N s/m2
    std::string compressibility;  ///< `Text5`
    std::string specificHeat;     ///< `Text3`, J/(kg K)
    std::string conductivity;     ///< `Text4`, W/(m K)

    bool operator==(const FluidFields&) const = default;
};

/// What the window shows of a fluid chosen in its list.
FluidFields ShowFluid(const FluidRecord& fluid);

/// The typed numbers as a record; `userDefined` is 0.
FluidRecord TypedFluid(const FluidFields& fields);

/// `Label9`, in m2/s, after a change of the viscosity and after a click in the density. Nothing
/// when the density reads as 0: the label then keeps its text.
std::optional<std::string> KinematicViscosityOnChange(const FluidFields& fields);
std::optional<std::string> KinematicViscosityOnClick(const FluidFields& fields);

/// The command panel's property label, as " 998.2 kg/mc ; 1.002E-3 Ns/mq"; its name label is
/// `Settings::FluidName`.
std::string FluidPropertyLabel(const Settings& settings);

}  // namespace idrova
