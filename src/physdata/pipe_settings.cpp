// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/pipe_settings.h"

#include <algorithm>

#include "base/number_text.h"

namespace idrova {
namespace {

constexpr std::size_t kShortCaption = 15;

std::string RoughnessText(double roughness) {
    return FormatNumber(roughness, "0.00E+0");
}

}  // namespace

std::string RoughnessLabel(std::string_view item, double roughness) {
    const auto* const preset = std::ranges::find(kRoughnessPresets, item, &RoughnessPreset::item);
    if (preset == kRoughnessPresets.end()) return RoughnessText(roughness);
    const std::string caption = preset->shortened
                                    ? std::string(preset->caption.substr(0, kShortCaption)) + "..."
                                    : std::string(preset->caption);
    return caption + "  " + RoughnessText(roughness);
}

bool ChooseUserRoughness(Settings& settings, std::string_view typed) {
    const double roughness = ReadNumber(typed);
    if (roughness < 0) return false;
    settings.Roughness = roughness;
    return true;
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
    return {.firstSideLabel = "Diameter [mm]"};
}

std::string_view PressureUnitLabel(Unit unit) {
    return unit == Unit::Bar ? "[bar]" : "[mbar]";
}

void ChoosePressureUnit(Settings& settings, Unit unit) {
    settings.PressureUnit = unit;
    settings.PressureUnitFactor = unit == Unit::Bar ? kPascalPerBar : kPascalPerMilliBar;
}

}  // namespace idrova
