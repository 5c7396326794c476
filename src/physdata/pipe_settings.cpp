// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/pipe_settings.h"

#include "base/number_text.h"

namespace idrova {
namespace {

constexpr std::size_t kShortCaption = 15;

std::string RoughnessText(double roughness) {
    return FormatNumber(roughness, "0.00E+0");
}

}  // namespace

std::string RoughnessLabel(const RoughnessPreset& preset, double roughness) {
    const std::string caption = preset.shortened
                                    ? std::string(preset.caption.substr(0, kShortCaption)) + "...  "
                                    : std::string(preset.caption) + "  ";
    return caption + RoughnessText(roughness);
}

std::string StartRoughnessLabel(const Settings& settings) {
    return RoughnessLabel(kRoughnessPresets.front(), settings.Roughness);
}

std::string ChooseRoughness(Settings& settings, const RoughnessPreset& preset) {
    settings.Roughness = preset.roughness;
    return RoughnessLabel(preset, preset.roughness);
}

std::optional<std::string> ChooseUserRoughness(Settings& settings, std::string_view typed) {
    const double roughness = ReadNumber(typed);
    if (roughness < 0) return std::nullopt;
    settings.Roughness = roughness;
    return RoughnessText(roughness);
}

std::string RoughnessFieldText(const Settings& settings) {
    return GeneralText(settings.Roughness);
}

SectionDisplay DisplayOf(Section section) {
    if (section == Section::Rectangular) {
        return {.nominalSizes = false,
                .firstSideLabel = "a [mm]",
                .secondSide = true,
                .secondSideLabel = "b [mm]"};
    }
    return {.nominalSizes = true,
            .firstSideLabel = "Diameter [mm]",
            .secondSide = false,
            .secondSideLabel = {}};
}

std::string_view PressureUnitLabel(Unit unit) {
    return unit == Unit::Bar ? "[bar]" : "[mbar]";
}

void ChoosePressureUnit(Settings& settings, Unit unit) {
    settings.PressureUnit = unit;
    settings.PressureUnitFactor = unit == Unit::Bar ? kPascalPerBar : kPascalPerMilliBar;
}

}  // namespace idrova
