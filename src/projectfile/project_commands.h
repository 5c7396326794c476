// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "base/message_boxes.h"
#include "model/project.h"
#include "projectfile/project_file.h"

namespace idrova {

/// Asks, then empties the network and detaches the file; settings, table rows and description
/// stay. False when the user wants to keep the project.
bool NewProject(Project& project, MessageBoxes& boxes, const HandOvers& handOvers);

/// Saves to the project's own file. Nothing when it has none yet: the file window is then needed.
std::optional<SaveOutcome> SaveToOwnFile(Project& project, MessageBoxes& boxes);

}  // namespace idrova
