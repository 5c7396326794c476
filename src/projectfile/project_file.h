// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/message_boxes.h"
#include "base/result.h"
#include "model/project.h"

namespace idrova {

/// Number of consecutive filled table rows: what `numins` becomes when the project is saved.
int CountTableRows(const Project& project);

/// The text of the project file.
std::string ProjectFileText(const Project& project);

enum class SaveOutcome {
    Saved,     ///< `numins` recounted, the previous version kept beside as "NAME~"
    Declined,  ///< the user did not want to overwrite; nothing changed
    Failed,    ///< told in a box; project and old file are as they were
};

/// Asks before it replaces an existing file.
SaveOutcome SaveProject(Project& project, const std::filesystem::path& path, MessageBoxes& boxes);

/// Saves to the project's own file. Nothing when it has none yet: the file window is then needed.
std::optional<SaveOutcome> SaveToOwnFile(Project& project, MessageBoxes& boxes);

/// Asks, then empties the network and detaches file and description; settings and table rows stay.
/// False when the user wants to keep the project.
bool NewProject(Project& project, MessageBoxes& boxes);

/// Saves without the question, for programs that may not ask.
Status WriteProject(Project& project, const std::filesystem::path& path);

enum class OpenOutcome {
    Opened,
    Missing,     ///< no such file: nothing changed
    TooOld,      ///< written before version 2.5: the network is empty, the name `kNewProject`
    Malformed,   ///< not a project, or one that breaks a limit: nothing changed
    Unreadable,  ///< a folder, no permission, too large: nothing changed
};

/// Replaces network, table rows and description by the file's content. Everything but success is
/// told in one box; the settings stay in any case.
OpenOutcome OpenProject(Project& project, const std::filesystem::path& path, MessageBoxes& boxes);

/// The same for a project that is empty and of no use when this fails: without a trial beside it,
/// which takes longer than all the rest.
OpenOutcome OpenNewProject(Project& project, const std::filesystem::path& path,
                           MessageBoxes& boxes);

/// The same as `OpenProject` from a text, for projects of today's version and without boxes. A
/// failure names the line, or the pipe or cell that does not fit the others, and leaves `project`
/// as it was.
Status ReadProjectText(std::string_view text, Project& project);

}  // namespace idrova
