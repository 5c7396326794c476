// SPDX-License-Identifier: GPL-3.0-or-later
#include "projectfile/file_form.h"

#include <utility>

#include "base/file.h"
#include "projectfile/messages.h"
#include "projectfile/project_file.h"
#include "projectfile/project_keys.h"
#include "projectfile/project_lines.h"

namespace idrova {
namespace {

constexpr std::string_view kExtension = ".iv";

bool HasForbiddenCharacter(std::string_view text) {
    return text.find_first_of(":;/\\") != std::string_view::npos;
}

std::string JoinPath(const std::string& folder, std::string_view name) {
    constexpr char separator = std::filesystem::path::preferred_separator;
    const std::string start = folder.ends_with(separator) ? folder : folder + separator;
    return start + std::string(name);
}

std::string WithExtension(const std::string& path) {
    return path.ends_with(kExtension) ? path : path + std::string(kExtension);
}

/// What became of the file that the project is named after.
enum class FileRun { Done, Missing, Failed };

/// Saves or opens it. `Failed` when it cannot be written or read, or is malformed: the project's
/// content is then what it was, as it is when the file is missing.
FileRun RunPurpose(FilePurpose purpose, Project& project, MessageBoxes& boxes,
                   const HandOvers& handOvers) {
    const std::filesystem::path path = project.ProjectName;
    if (purpose == FilePurpose::Save) {
        const SaveOutcome saved = SaveProject(project, path, boxes);
        return saved == SaveOutcome::Failed ? FileRun::Failed : FileRun::Done;
    }
    switch (OpenProject(project, path, boxes, handOvers)) {
        case OpenOutcome::Malformed:
        case OpenOutcome::Unreadable:
            return FileRun::Failed;
        case OpenOutcome::Missing:
            return FileRun::Missing;
        default:
            return FileRun::Done;
    }
}

}  // namespace

std::string_view FileFormCaption(FilePurpose purpose) {
    return purpose == FilePurpose::Save ? "Idrova - Save project" : "Idrova - Open project";
}

FileForm StartFileForm(FilePurpose purpose, const std::filesystem::path& folder,
                       const Project& project) {
    FileForm form;
    form.purpose = purpose;
    form.folder = form.Text2 = folder.string();
    if (purpose == FilePurpose::Save) form.Text4 = project.ProjectDescription;
    return form;
}

void ChooseFolder(FileForm& form, const std::filesystem::path& folder) {
    form.folder = folder.string();
    form.Text2 = form.Text3.empty() ? form.folder : JoinPath(form.folder, form.Text3);
}

void TypeFilter(FileForm& form, std::string_view text) {
    form.Text1 = text;
    if (!HasForbiddenCharacter(text)) form.pattern = text;
}

void TypeName(FileForm& form, std::string_view text, MessageBoxes& boxes) {
    form.Text3 = text;
    if (HasForbiddenCharacter(text)) {
        boxes.Show(kNameNotAllowed);
        form.Text3.clear();
    }
    form.Text2 = JoinPath(form.folder, form.Text3);
}

void ClickFile(FileForm& form, std::string_view name, MessageBoxes& boxes) {
    TypeName(form, name, boxes);
    form.Text4 = DescriptionIn(JoinPath(form.folder, name));
}

void DoubleClickFile(FileForm& form, std::string_view name) {
    form.Text2 = JoinPath(form.folder, name);
}

bool ConfirmFileForm(const FileForm& form, Project& project, MessageBoxes& boxes,
                     const HandOvers& handOvers) {
    if (form.Text3.empty()) return false;
    const std::string path = WithExtension(form.Text2);
    std::string formerName = std::exchange(project.ProjectName, path);
    std::string formerDescription = std::exchange(project.ProjectDescription, form.Text4);
    const FileRun run = RunPurpose(form.purpose, project, boxes, handOvers);
    if (run != FileRun::Done) project.ProjectDescription = std::move(formerDescription);
    if (run == FileRun::Failed) {
        project.ProjectName = std::move(formerName);
        return false;
    }
    if (project.ProjectName == path) {  // an old version has detached the file instead
        handOvers.ShowTitle(form.Text3);
    }
    return true;
}

std::filesystem::path NearestFolder(std::filesystem::path folder) {
    std::error_code ignored;
    while (!std::filesystem::is_directory(folder, ignored) && folder.has_relative_path()) {
        folder = folder.parent_path();
    }
    return folder;
}

std::string DescriptionIn(const std::filesystem::path& path) {
    const Result<std::string> text = ReadWholeFile(path, kLargestProjectFile);
    if (!text) return {};
    ProjectLines lines(*text);
    while (!lines.AtEnd() && !lines.PassKey(kDescriptionKey)) lines.LastText();
    std::string description;
    while (!lines.AtEnd()) description += lines.LastText();
    return description;
}

}  // namespace idrova
