// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace idrova {

/// Where a folder list may start: the drives of the machine, or, where there is one tree of
/// folders only, its root, the user's home and what is mounted for users; then the `places` that
/// the program has of its own, as far as they are there.
std::vector<std::string> Drives(const std::vector<std::filesystem::path>& places);

/// The drive that holds `folder`: the longest that is the start of its path.
std::string DriveOf(const std::string& folder, const std::vector<std::string>& drives);

}  // namespace idrova
