// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace idrova {

constexpr std::size_t kMostRecentFiles = 10;

/// The list of full paths with `path` at its front, each once, the oldest beyond
/// `kMostRecentFiles` left out.
std::vector<std::string> WithRecentFile(std::vector<std::string> files, const std::string& path);

/// What the menu shows of the file in place `position` (from 0): its name and folder behind the
/// digit that chooses it, "&1 plant.iv - /home/ann"; the tenth has the digit 0.
std::string RecentFileCaption(std::size_t position, const std::string& path);

}  // namespace idrova
