// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "model/settings.h"

namespace idrova {

/// A roughness of the menu, by material and state of the pipe walls.
struct RoughnessPreset {
    std::string_view item;     ///< menu item
    std::string_view caption;  ///< of the menu item
    double roughness = 0;      ///< absolute, m
    bool shortened = false;    ///< the label takes only the first characters of the caption
};

constexpr std::array<RoughnessPreset, 5> kRoughnessPresets = {{
    {"t1", "zincate steel\t", 0.00005, false},
    {"t2", "stainless stell / polyethylene / copper", 0.00002, true},
    {"t3", "rough cast iron / concrete", 0.0004, true},
    {"t4", "partially rusty", 0.002, true},
    {"t5", "strong incrostations", 0.005, false},
}};

constexpr std::string_view kUserRoughnessItem = "tt";

/// The command panel's roughness label: of a preset its caption, or the beginning of it, and the
/// roughness in m; of any other menu item the roughness alone.
std::string RoughnessLabel(std::string_view item, double roughness);

/// Sets the roughness typed in m; false, and nothing set, when it is negative.
bool ChooseUserRoughness(Settings& settings, std::string_view typed);

/// What the roughness window's field shows on opening.
std::string RoughnessFieldText(const Settings& settings);

/// What the command panel shows for the section.
struct SectionDisplay {
    bool nominalSizes = true;           ///< the list of nominal sizes and its label
    std::string_view firstSideLabel{};  ///< of the first size field
    bool secondSide = false;            ///< the second side's field and label
    std::string_view secondSideLabel{};

    bool operator==(const SectionDisplay&) const = default;
};

SectionDisplay DisplayOf(Section section);

/// "[bar]" or "[mbar]".
std::string_view PressureUnitLabel(Unit unit);

/// Sets the unit and the factor that typed and shown pressures are converted with.
void ChoosePressureUnit(Settings& settings, Unit unit);

}  // namespace idrova
