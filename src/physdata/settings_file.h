// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"
#include "model/limits.h"
#include "model/settings.h"

namespace idrova {

/// The settings that travel with a project, in a file beside it: fluid, roughness, section,
/// equation, temperature, base pressure, pressure unit and limits. The working mode and whether
/// reports are collected are no such settings.

/// A set of such settings; those that do not travel have their start values.
struct StoredSettings {
    Settings settings;
    std::string_view roughnessItem;  ///< menu item of the roughness
    Limits limits{};

    bool operator==(const StoredSettings&) const = default;
};

/// "NAME.settings.json" beside "NAME.iv".
std::filesystem::path SettingsFileOf(const std::filesystem::path& project);

/// The text of the file: names, and values in SI units (temperatures in degrees Celsius).
std::string SettingsText(const StoredSettings& stored);

/// Takes such a text apart. Fails when it is damaged, of a newer version, or holds values that
/// cannot be computed with.
Result<StoredSettings> ParseSettings(std::string_view text);

/// The settings beside a project; nothing when there is no such file.
std::optional<Result<StoredSettings>> ReadSettingsOf(const std::filesystem::path& project);

/// A file that could not be read is kept beside, as "NAME.settings.json~".
Status WriteSettingsOf(const std::filesystem::path& project, const StoredSettings& stored);

/// Replaces the settings that travel.
void UseSettings(const StoredSettings& stored, Settings& settings);

/// What a user is told of the settings beside a project when they could not be read, or differ from
/// the present ones; empty when there is nothing to tell.
std::string SettingsOffer(const std::optional<Result<StoredSettings>>& stored,
                          const StoredSettings& present);

/// What `stored` has other than `present`, as "fluid Air, equation compressible"; empty when
/// nothing. A fluid differs by its values or its name, without the number of its record.
std::string SettingsDifference(const StoredSettings& stored, const StoredSettings& present);

}  // namespace idrova
