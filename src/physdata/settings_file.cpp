// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/settings_file.h"

#include <cmath>
#include <nlohmann/json.hpp>

#include "base/file.h"
#include "base/number_text.h"
#include "physdata/fluids.h"
#include "physdata/limit_texts.h"
#include "physdata/messages.h"
#include "physdata/pipe_settings.h"

namespace idrova {
namespace {

using Json = nlohmann::ordered_json;

constexpr int kVersion = 1;
constexpr std::size_t kLargestSettingsFile = std::size_t{64} * 1024;
constexpr double kAbsoluteZero = -273.15;  ///< degrees Celsius

std::string_view SectionName(Section section) {
    return section == Section::Circular ? "circular" : "rectangular";
}

std::string_view EquationName(Equation equation) {
    return equation == Equation::Incompressible ? "incompressible" : "compressible";
}

std::string_view UnitName(Unit unit) {
    return unit == Unit::Bar ? "bar" : "mbar";
}

std::string_view RoughnessName(std::string_view item) {
    for (const RoughnessPreset& preset : kRoughnessPresets) {
        if (preset.item == item) return preset.caption.substr(0, preset.caption.find('\t'));
    }
    return "user value";
}

std::string_view RoughnessItem(std::string_view name) {
    for (const RoughnessPreset& preset : kRoughnessPresets) {
        if (RoughnessName(preset.item) == name) return preset.item;
    }
    return kUserRoughnessItem;
}

/// Takes values out of a JSON object. The first that is missing or wrong is kept as the fault.
class Reader {
  public:
    explicit Reader(const Json& json) : json_(json) {}

    std::string Text(const char* group, const char* key) {
        const Json* value = Find(group, key);
        if (value != nullptr && value->is_string()) return value->get<std::string>();
        Fail(key);
        return {};
    }

    double Number(const char* group, const char* key, double lowest) {
        const Json* value = Find(group, key);
        if (value != nullptr && value->is_number()) {
            const auto number = value->get<double>();
            if (std::isfinite(number) && number >= lowest) return number;
        }
        Fail(key);
        return 0;
    }

    /// Nothing when there is no such key.
    std::optional<double> OptionalNumber(const char* group, const char* key) {
        if (Find(group, key) == nullptr) return std::nullopt;
        return Number(group, key, std::numeric_limits<double>::lowest());
    }

    /// The one of two values whose name stands there.
    template <typename Value>
    Value OneOf(const char* key, Value one, Value other, std::string_view (*nameOf)(Value)) {
        const std::string name = Text("", key);
        if (name != nameOf(one) && name != nameOf(other)) Fail(key);
        return name == nameOf(other) ? other : one;
    }

    const std::string& Fault() const { return fault_; }

  private:
    const Json* Find(std::string_view group, const char* key) const {
        const Json* place = &json_;
        if (!group.empty()) {
            const auto found = json_.find(group);
            if (found == json_.end()) return nullptr;
            place = &*found;
        }
        const auto value = place->find(key);
        return place->is_object() && value != place->end() ? &*value : nullptr;
    }

    void Fail(const char* key) {
        if (fault_.empty()) fault_ = key;
    }

    const Json& json_;
    std::string fault_;
};

Settings ReadSettings(Reader& reader) {
    constexpr double any = -std::numeric_limits<float>::max();
    Settings settings;
    settings.FluidName = reader.Text("fluid", "name");
    settings.FluidDensity = reader.Number("fluid", "density_kg_m3", 0);
    settings.FluidViscosity = reader.Number("fluid", "viscosity_Pa_s", 0);
    settings.FluidCompressibility = reader.Number("fluid", "compressibility", 0);
    settings.Roughness = reader.Number("roughness", "value_m", 0);
    settings.SectionType =
        reader.OneOf("section", Section::Circular, Section::Rectangular, SectionName);
    settings.EquationType =
        reader.OneOf("equation", Equation::Incompressible, Equation::Compressible, EquationName);
    settings.FluidTemperature = ToSingle(reader.Number("", "temperature_C", kAbsoluteZero));
    settings.BasePressure = ToSingle(reader.Number("", "base_pressure_Pa", any));
    ChoosePressureUnit(settings,
                       reader.OneOf("pressure_unit", Unit::Bar, Unit::MilliBar, UnitName));
    return settings;
}

struct LimitKey {
    const char* key = "";
    std::optional<double> Limits::*limit = nullptr;
};
constexpr const char* kLimitsGroup = "limits";
constexpr LimitKey kLimitKeys[] = {{"velocity_m_s", &Limits::velocity},
                                   {"loss_Pa_m", &Limits::loss},
                                   {"lowest_pressure_Pa", &Limits::lowestPressure},
                                   {"highest_pressure_Pa", &Limits::highestPressure}};

Limits ReadLimits(Reader& reader) {
    Limits limits;
    for (const auto& [key, limit] : kLimitKeys) {
        limits.*limit = reader.OptionalNumber(kLimitsGroup, key);
    }
    return limits;
}

void AddLimits(const Limits& limits, Json& json) {
    for (const auto& [key, limit] : kLimitKeys) {
        if (limits.*limit) json[kLimitsGroup][key] = *(limits.*limit);
    }
}

bool SameFluid(const Settings& one, const Settings& other) {
    return PlainFluidName(one.FluidName) == PlainFluidName(other.FluidName) &&
           one.FluidDensity == other.FluidDensity && one.FluidViscosity == other.FluidViscosity &&
           one.FluidCompressibility == other.FluidCompressibility;
}

std::string FluidWords(const Settings& settings) {
    if (settings.FluidName.empty()) return settings.FluidDensity > 0 ? "without a name" : "none";
    return std::string(PlainFluidName(settings.FluidName));
}

}  // namespace

std::filesystem::path SettingsFileOf(const std::filesystem::path& project) {
    std::filesystem::path file = project;
    return file.replace_extension(".settings.json");
}

std::string SettingsText(const StoredSettings& stored) {
    const Settings& settings = stored.settings;
    Json json = {{"idrova_settings", kVersion},
                 {"fluid",
                  {{"name", PlainFluidName(settings.FluidName)},
                   {"density_kg_m3", settings.FluidDensity},
                   {"viscosity_Pa_s", settings.FluidViscosity},
                   {"compressibility", settings.FluidCompressibility}}},
                 {"roughness",
                  {{"name", RoughnessName(stored.roughnessItem)}, {"value_m", settings.Roughness}}},
                 {"section", SectionName(settings.SectionType)},
                 {"equation", EquationName(settings.EquationType)},
                 {"temperature_C", DecimalDouble(settings.FluidTemperature)},
                 {"base_pressure_Pa", DecimalDouble(settings.BasePressure)},
                 {"pressure_unit", UnitName(settings.PressureUnit)}};
    AddLimits(stored.limits, json);
    return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

Result<StoredSettings> ParseSettings(std::string_view text) {
    const Json json = Json::parse(text, nullptr, false);
    if (!json.is_object()) return Failure{std::string(kSettingsDamaged)};
    Reader reader(json);
    const double version = reader.Number("", "idrova_settings", 1);
    if (version > kVersion) return Failure{std::string(kSettingsNewer)};
    const StoredSettings stored{
        ReadSettings(reader), RoughnessItem(reader.Text("roughness", "name")), ReadLimits(reader)};
    if (!reader.Fault().empty()) return Failure{SettingsFault(reader.Fault())};
    return stored;
}

std::optional<Result<StoredSettings>> ReadSettingsOf(const std::filesystem::path& project) {
    const std::filesystem::path file = SettingsFileOf(project);
    std::error_code ignored;
    if (!std::filesystem::exists(file, ignored)) return std::nullopt;
    const Result<std::string> text = ReadWholeFile(file, kLargestSettingsFile);
    if (!text) return Failure{text.Error()};
    return ParseSettings(*text);
}

Status WriteSettingsOf(const std::filesystem::path& project, const StoredSettings& stored) {
    const auto before = ReadSettingsOf(project);
    const bool unread = before && !*before;  // by a newer version, perhaps
    return WriteWholeFile(SettingsFileOf(project), SettingsText(stored),
                          unread ? OldFile::KeptBeside : OldFile::Dropped);
}

void UseSettings(const StoredSettings& stored, Settings& settings) {
    const WorkMode mode = settings.Mode;
    const bool inSequence = settings.ResultsInSequence;
    settings = stored.settings;
    settings.Mode = mode;
    settings.ResultsInSequence = inSequence;
}

std::string SettingsOffer(const std::optional<Result<StoredSettings>>& stored,
                          const StoredSettings& present) {
    if (!stored) return {};
    if (!*stored) return SettingsUnread(stored->Error());
    const std::string difference = SettingsDifference(**stored, present);
    return difference.empty() ? difference : SettingsDiffer(difference);
}

std::string SettingsDifference(const StoredSettings& stored, const StoredSettings& present) {
    const Settings& settings = present.settings;
    const Settings& other = stored.settings;
    std::string words;
    const auto add = [&words](bool differs, const std::string& what) {
        if (differs) words += (words.empty() ? "" : ", ") + what;
    };
    add(!SameFluid(settings, other), "fluid " + FluidWords(other));
    add(other.Roughness != settings.Roughness,
        "roughness " + GeneralText(other.Roughness * kMillimetresPerMetre) + " mm");
    add(other.SectionType != settings.SectionType,
        "section " + std::string(SectionName(other.SectionType)));
    add(other.EquationType != settings.EquationType,
        "equation " + std::string(EquationName(other.EquationType)));
    add(other.FluidTemperature != settings.FluidTemperature,
        "temperature " + GeneralText(other.FluidTemperature) + " \u00B0C");
    add(other.BasePressure != settings.BasePressure,
        "base pressure " + GeneralText(other.BasePressure / kPascalPerBar) + " bar");
    add(other.PressureUnit != settings.PressureUnit,
        "pressures in " + std::string(UnitName(other.PressureUnit)));
    add(stored.limits != present.limits, "limits: " + LimitWords(stored.limits));
    return words;
}

}  // namespace idrova
