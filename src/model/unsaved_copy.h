// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string_view>

#include "model/project.h"

namespace idrova {

/// The copy of the project that was left last without being saved, in the working folder; the one
/// before it is kept beside it as "unsaved.iv~".
constexpr std::string_view kUnsavedFile = "unsaved.iv";

/// To be called before a project is left, which no question stops: writes the copy, unless the
/// project holds neither pipes nor table rows or its own file holds the same. A folder that cannot
/// be written gets none, untold: leaving is not to be held up.
void KeepUnsaved(const Project& project, const std::filesystem::path& folder);

}  // namespace idrova
