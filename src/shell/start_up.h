// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

#include "base/message_boxes.h"
#include "base/result.h"

namespace idrova {

/// Number format. All reading and writing of numbers goes through base/number_text, which knows
/// only the period, so the machine's regional settings are neither asked nor changed. The window
/// layer sets its toolkit and the C library to the same format for the toolkit's own fields.

constexpr int kSplashMilliseconds = 3000;  ///< how long the splash window stays

/// Warns of a screen narrower than 1024 pixels; the program carries on in any case.
void CheckScreen(int widthPixels, MessageBoxes& boxes);

/// "ver. " and the version text, as the splash and about windows show it.
std::string VersionLine();

/// Where the databases, the icons and the results live: beside the executable when the icons are
/// there, else in the user's own folder.
std::filesystem::path WorkingFolder(const std::filesystem::path& executable,
                                    const std::filesystem::path& userDataFolder);

/// What the program was delivered with. A path is empty when there is no such thing.
struct ShippedFiles {
    std::filesystem::path samples;  ///< folder of sample projects
    std::filesystem::path manual;
};

/// Looks beside the executable, then in the shared folders of an installation.
ShippedFiles FindShippedFiles(const std::filesystem::path& executable);

/// Makes the folder when there is none and gives it, at that first use, the sample databases and
/// the icons of `shared`. An existing folder keeps what it has.
Status PrepareWorkingFolder(const std::filesystem::path& folder,
                            const std::filesystem::path& shared);

}  // namespace idrova
