// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/settings_file.h"

#include <gmock/gmock.h>

#include <cmath>

#include "base/number_text.h"
#include "physdata/limit_texts.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

using testing::HasSubstr;

/// Differs from the start values in everything.
StoredSettings AirSettings() {
    const double bar = kPascalPerBar;
    StoredSettings stored{{}, "t4", {2.5, 300, -.5 * bar, 6 * bar}};
    Settings& settings = stored.settings;
    settings.FluidName = "[3] Air, \"dry\"";
    settings.FluidDensity = 1.2929;
    settings.FluidViscosity = 1.8e-5;
    settings.FluidCompressibility = .98;
    settings.Roughness = .002;
    settings.SectionType = Section::Rectangular;
    settings.EquationType = Equation::Compressible;
    settings.FluidTemperature = -10.1F;
    settings.BasePressure = 202650;
    settings.PressureUnit = Unit::MilliBar;
    settings.PressureUnitFactor = kPascalPerMilliBar;
    return stored;
}

TEST(SettingsFile, ComesBackBesideItsProject) {
    const TempFolder folder;
    const auto project = folder / "plant.v2.iv";
    EXPECT_FALSE(ReadSettingsOf(project));
    StoredSettings stored = AirSettings();
    ASSERT_TRUE(WriteSettingsOf(project, stored));
    EXPECT_THAT(FileBytes(folder / "plant.v2.settings.json"),
                HasSubstr("\"temperature_C\": -10.1,"));
    PutFile(folder / "plant.v2.settings.json", "{");
    ASSERT_TRUE(WriteSettingsOf(project, stored));
    EXPECT_EQ(FileBytes(folder / "plant.v2.settings.json~"), "{") << "by a newer version, perhaps";
    stored.settings.FluidName = "Air, \"dry\"";
    EXPECT_EQ(**ReadSettingsOf(project), stored);

    Settings settings;
    settings.Mode = WorkMode::Table;
    settings.ResultsInSequence = true;
    EXPECT_EQ(SettingsDifference(stored, {settings, ""}),
              "fluid Air, \"dry\", roughness 2 mm, section rectangular, equation compressible, "
              "temperature -10.1 \u00B0C, base pressure 2 bar, pressures in mbar, limits: velocity "
              "2.5 m/s, "
              "losses 300 Pa/m, lowest pressure -0.5 bar, highest pressure 6 bar");
    UseSettings(AirSettings(), settings);
    EXPECT_EQ(SettingsDifference(stored, {settings, "", stored.limits}), "")
        << "the number of a fluid's record is none";
    EXPECT_EQ(SettingsDifference({settings, ""}, {settings, "", stored.limits}), "limits: none");
    EXPECT_EQ(SettingsText({settings, ""}).find("limits"), std::string::npos);
    EXPECT_TRUE(settings.Mode == WorkMode::Table && settings.ResultsInSequence) << "do not travel";
}

TEST(SettingsFile, DamageIsToldAndNeverComputedWith) {
    const std::string text = SettingsText(AirSettings());
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        EXPECT_FALSE(ParseSettings(text.substr(0, i))) << i;
        for (const char byte : {' ', '9', '-', 'e', '"', '}', '\xFF', '\0'}) {
            std::string damaged = text;
            damaged[i] = byte;
            const Result<StoredSettings> read = ParseSettings(damaged);
            if (!read) continue;
            const Settings& settings = read->settings;
            for (const double value : {settings.FluidDensity, settings.FluidViscosity,
                                       settings.FluidCompressibility, settings.Roughness}) {
                EXPECT_TRUE(std::isfinite(value) && value >= 0) << damaged;
            }
            EXPECT_GE(settings.FluidTemperature, -273.15F) << damaged;
            EXPECT_TRUE(std::isfinite(settings.BasePressure)) << damaged;
            for (const auto& limit : {read->limits.velocity, read->limits.highestPressure}) {
                EXPECT_TRUE(!limit || std::isfinite(*limit)) << damaged;
            }
        }
    }
    const auto faultOf = [&](std::string_view from, std::string_view to) {
        std::string changed = text;
        return ParseSettings(changed.replace(changed.find(from), from.size(), to)).Error();
    };
    EXPECT_THAT(faultOf("settings\": 1", "settings\": 2"), HasSubstr("a newer version"));
    EXPECT_THAT(faultOf("section", "selection"), HasSubstr("damaged at \"section\""));
    EXPECT_THAT(faultOf("rectangular", "round"), HasSubstr("damaged at \"section\""));
    EXPECT_THAT(faultOf("0.98", "\"0.98\""), HasSubstr("damaged at \"compressibility\""));
}

TEST(LimitTexts, AreNumbersOrEmptyInTheUnitShown) {
    const double millibar = DecimalDouble(kPascalPerMilliBar);
    const auto limits = ReadLimits({"2", " ", "-.5", "3000"}, millibar);
    ASSERT_TRUE(limits);
    EXPECT_EQ(*limits, (Limits{2, {}, -.5 * millibar, 3000 * millibar}));
    const LimitTexts shown = ShowLimits(*limits, kPascalPerBar);
    EXPECT_EQ(shown.velocity + "|" + shown.loss + "|" + shown.lowestPressure + "|" +
                  shown.highestPressure,
              "2||-.0005|3");
    EXPECT_FALSE(ReadLimits({"2", "", "", "3 bar"}, kPascalPerBar));
}

}  // namespace
}  // namespace idrova
