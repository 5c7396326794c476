// SPDX-License-Identifier: GPL-3.0-or-later
#include "projectfile/project_commands.h"

#include "projectfile/messages.h"

namespace idrova {

bool NewProject(Project& project, MessageBoxes& boxes, const HandOvers& handOvers) {
    if (boxes.Show(kLeaveProject) != Answer::Ok) return false;
    ResetProject(project, handOvers);
    project.ProjectName = kNewProject;
    handOvers.ShowNetwork();
    handOvers.ShowTitle(project.ProjectName);
    return true;
}

std::optional<SaveOutcome> SaveToOwnFile(Project& project, MessageBoxes& boxes) {
    if (project.ProjectName == kNewProject) return std::nullopt;
    return SaveProject(project, project.ProjectName, boxes);
}

}  // namespace idrova
