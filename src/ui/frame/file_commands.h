// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

namespace idrova {

class MDI;

/// New, open and save.
void AttachFileCommands(MDI& mdi);

/// Opens a project file without asking.
void OpenFile(MDI& mdi, const std::filesystem::path& path);

/// The same for an entry of "Open recent", which goes when there is no such file any more.
void OpenRecentFile(MDI& mdi, const std::filesystem::path& path);

}  // namespace idrova
