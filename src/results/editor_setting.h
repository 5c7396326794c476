// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/message_boxes.h"

namespace idrova {

/// The text editor that shows the results: its path is the one line of a file in the working
/// folder.
constexpr std::string_view kEditorFile = "IV.CFG";

/// What the editor box shows before there is a setting.
constexpr std::string_view kChooseEditor = "Choose an editor or define a new editor";

/// Whether the path leads to a file, and not to a folder.
bool IsFile(const std::filesystem::path& path);

/// The first line of the setting; empty without one.
std::string ConfiguredEditor(const std::filesystem::path& folder);

/// Plain-text editors to offer: those of the usual ones that are there, or all if none is.
std::vector<std::string> EditorSuggestions();

/// What the editor box shows on opening: empty when the setting leads to no file.
std::string EditorBoxText(const std::filesystem::path& folder);

/// Stores the setting. False, told in a box, when `editor` leads to no file or cannot be stored.
bool SaveEditor(const std::filesystem::path& folder, const std::string& editor,
                MessageBoxes& boxes);

}  // namespace idrova
