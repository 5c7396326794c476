// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/recent_files.h"

#include <filesystem>

namespace idrova {
namespace {

/// A menu takes a single "&" for the mark of its key.
std::string Unmarked(const std::string& text) {
    std::string result;
    for (const char c : text) result += c == '&' ? "&&" : std::string(1, c);
    return result;
}

}  // namespace

std::vector<std::string> WithRecentFile(std::vector<std::string> files, const std::string& path) {
    std::erase(files, path);
    files.insert(files.begin(), path);
    if (files.size() > kMostRecentFiles) files.resize(kMostRecentFiles);
    return files;
}

std::string RecentFileCaption(std::size_t position, const std::string& path) {
    const std::filesystem::path file = path;
    const std::string digit = std::to_string((position + 1) % kMostRecentFiles);
    return "&" + digit + " " + Unmarked(file.filename().string()) + " - " +
           Unmarked(file.parent_path().string());
}

}  // namespace idrova
