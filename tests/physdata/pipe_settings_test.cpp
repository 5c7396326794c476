// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/pipe_settings.h"

#include <gtest/gtest.h>

namespace idrova {
namespace {

TEST(Roughness, PresetsSetTheirValueAndLabel) {
    Settings settings;
    EXPECT_EQ(StartRoughnessLabel(settings), "zincate steel\t  1.00E-4");
    const std::array<const char*, kRoughnessPresets.size()> labels = {
        "zincate steel\t  5.00E-5", "stainless stell...  2.00E-5", "rough cast iron...  4.00E-4",
        "partially rusty...  2.00E-3", "strong incrostations  5.00E-3"};
    for (std::size_t i = 0; i < labels.size(); ++i) {
        EXPECT_EQ(ChooseRoughness(settings, kRoughnessPresets.at(i)), labels.at(i));
        EXPECT_EQ(settings.Roughness, kRoughnessPresets.at(i).roughness);
    }
}

TEST(Roughness, TheUserMayTypeAnyButANegativeOne) {
    Settings settings;
    EXPECT_EQ(ChooseUserRoughness(settings, "-0.001"), std::nullopt);
    EXPECT_EQ(RoughnessFieldText(settings), ".0001");
    EXPECT_EQ(ChooseUserRoughness(settings, "0.00015 m"), "1.50E-4");
    EXPECT_EQ(settings.Roughness, 0.00015);
    EXPECT_EQ(ChooseUserRoughness(settings, "none"), "0.00E+0");
    EXPECT_EQ(settings.Roughness, 0);
}

TEST(Section, DecidesWhichSizeFieldsAreShown) {
    EXPECT_EQ(DisplayOf(Section::Circular), (SectionDisplay{true, "Diameter [mm]", false, ""}));
    EXPECT_EQ(DisplayOf(Section::Rectangular), (SectionDisplay{false, "a [mm]", true, "b [mm]"}));
}

TEST(PressureUnit, ChangesTheFactorAndTheLabel) {
    Settings settings;
    ChoosePressureUnit(settings, Unit::MilliBar);
    EXPECT_EQ(settings.PressureUnit, Unit::MilliBar);
    EXPECT_EQ(1000 * settings.PressureUnitFactor, 101325.0F);
    EXPECT_EQ(PressureUnitLabel(settings.PressureUnit), "[mbar]");
    ChoosePressureUnit(settings, Unit::Bar);
    EXPECT_EQ(settings.PressureUnitFactor, 101325.0F);
    EXPECT_EQ(PressureUnitLabel(settings.PressureUnit), "[bar]");
}

}  // namespace
}  // namespace idrova
