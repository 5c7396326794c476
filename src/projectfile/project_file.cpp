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

/// Into empty tables; a failure leaves them with what was wrong.
Status PutSound(const ProjectContent& content, Project& project) {
    PutContent(content, project);
    const std::vector<std::string> broken = BrokenInvariants(project);
    return broken.empty() ? Status(Done{}) : Failure{broken.front()};
}

/// Tries the content out apart from `project`, on the same grid.
Status CheckSound(const ProjectContent& content, const Project& project) {
    const auto trial = std::make_unique<Project>();
    trial->GridSize = project.GridSize;
    trial->Grid = project.Grid;
    return PutSound(content, *trial);
}

Status PutApart(const ProjectContent& content, Project& project) {
    if (Status sound = CheckSound(content, project); !sound) return sound;
    ClearNetwork(project);
    PutContent(content, project);
    return Done{};
}

using Put = Status (*)(const ProjectContent&, Project&);

Status ReadText(std::string_view text, Project& project, Put put) {
    if (IsBeforeVersion25(text)) return Failure{std::string(kFileTooOld.text)};
    const Result<ProjectContent> content = ParseProject(text, project.GridSize);
    if (!content) return Failure{content.Error()};
    return put(*content, project);
}

OpenOutcome Open(Project& project, const fs::path& path, MessageBoxes& boxes, Put put) {
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
        ClearNetwork(project);
        project.ProjectName = kNewProject;
        return OpenOutcome::TooOld;
    }
    if (const Status read = ReadText(*text, project, put); !read) {
        boxes.Show(ProjectMalformed(read.Error()));
        return OpenOutcome::Malformed;
    }
    return OpenOutcome::Opened;
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

std::optional<SaveOutcome> SaveToOwnFile(Project& project, MessageBoxes& boxes) {
    if (project.ProjectName == kNewProject) return std::nullopt;
    return SaveProject(project, project.ProjectName, boxes);
}

bool NewProject(Project& project, MessageBoxes& boxes) {
    if (boxes.Show(kLeaveProject) != Answer::Ok) return false;
    ResetProject(project);
    project.ProjectName = kNewProject;
    project.ProjectDescription.clear();
    return true;
}

Status ReadProjectText(std::string_view text, Project& project) {
    return ReadText(text, project, PutApart);
}

OpenOutcome OpenProject(Project& project, const fs::path& path, MessageBoxes& boxes) {
    return Open(project, path, boxes, PutApart);
}

OpenOutcome OpenNewProject(Project& project, const fs::path& path, MessageBoxes& boxes) {
    return Open(project, path, boxes, PutSound);
}

}  // namespace idrova
