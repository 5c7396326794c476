// SPDX-License-Identifier: GPL-3.0-or-later
#include "projectfile/project_file.h"

#include <memory>

#include "base/file.h"
#include "model/invariants.h"
#include "projectfile/messages.h"
#include "projectfile/project_content.h"
#include "projectfile/project_keys.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

bool FileExists(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error) && !fs::is_directory(path, error);
}

void LeaveNetwork(Project& project, const HandOvers& handOvers) {
    if (project.settings.Mode == WorkMode::Graphic) ResetProject(project, handOvers);
    if (project.settings.Mode == WorkMode::Table) handOvers.ClearTable();
}

void RefuseOldVersion(Project& project, const HandOvers& handOvers) {
    if (project.settings.Mode == WorkMode::Table) handOvers.ClearTable();
    ResetProject(project, handOvers);
    ClearNetwork(project);
    project.ProjectName = kNewProject;
    handOvers.ShowNetwork();
    handOvers.ShowTitle(project.ProjectName);
}

/// Tries the content out apart from `project`, on the same grid.
Status CheckSound(const ProjectContent& content, const Project& project) {
    const auto trial = std::make_unique<Project>();
    trial->GridSize = project.GridSize;
    trial->Grid = project.Grid;
    PutContent(content, *trial);
    const std::vector<std::string> broken = BrokenInvariants(*trial);
    return broken.empty() ? Status(Done{}) : Failure{broken.front()};
}

}  // namespace

Status WriteProject(Project& project, const fs::path& path) {
    Status written = WriteWholeFile(path, ProjectFileText(project), OldFile::KeptBeside);
    if (written) project.numins = CountTableRows(project);
    return written;
}

SaveOutcome SaveProject(Project& project, const fs::path& path, MessageBoxes& boxes) {
    if (FileExists(path) && boxes.Show(kOverwriteFile) != Answer::Yes) return SaveOutcome::Declined;
    if (const Status written = WriteProject(project, path); !written) {
        boxes.Show(SaveFailed(written.Error()));
        return SaveOutcome::Failed;
    }
    return SaveOutcome::Saved;
}

Status ReadProjectText(std::string_view text, Project& project, const HandOvers& handOvers) {
    if (IsBeforeVersion25(text)) return Failure{std::string(kFileTooOld.text)};
    const Result<ProjectContent> content = ParseProject(text, project.GridSize);
    if (!content) return Failure{content.Error()};
    if (Status sound = CheckSound(*content, project); !sound) return sound;
    LeaveNetwork(project, handOvers);
    ClearNetwork(project);
    PutContent(*content, project);
    handOvers.ShowNetwork();
    return Done{};
}

OpenOutcome OpenProject(Project& project, const fs::path& path, MessageBoxes& boxes,
                        const HandOvers& handOvers) {
    std::error_code error;
    if (!fs::exists(path, error) && !error) {
        boxes.Show(kFileMissing);
        return OpenOutcome::Missing;
    }
    const Result<std::string> text = ReadWholeFile(path, kLargestProjectFile);
    if (!text) {
        boxes.Show(OpenFailed(text.Error()));
        return OpenOutcome::Unreadable;
    }
    if (IsBeforeVersion25(*text)) {
        boxes.Show(kFileTooOld);
        RefuseOldVersion(project, handOvers);
        return OpenOutcome::TooOld;
    }
    if (const Status read = ReadProjectText(*text, project, handOvers); !read) {
        boxes.Show(ProjectMalformed(read.Error()));
        return OpenOutcome::Malformed;
    }
    return OpenOutcome::Opened;
}

}  // namespace idrova
