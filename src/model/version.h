// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace idrova {

constexpr const char* kVersionNumber = "2.6";
constexpr const char* kVersionRelease = ".3";

/// `VersionNumber` followed by `VersionRelease`: heads every project file and every title.
std::string VersionText();

/// "Idrova 2.6.3 - [name]".
std::string WindowTitle(std::string_view name);

}  // namespace idrova
