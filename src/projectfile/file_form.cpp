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

/// The name of the file that a form means to open.
std::string NameToOpen(const std::string& path) {
    std::error_code ignored;
    std::string extended = WithExtension(path);
    const bool onlyAsTyped = !std::filesystem::exists(extended, ignored) &&
                             std::filesystem::is_regular_file(path, ignored);
    return onlyAsTyped ? path : extended;
}

/// The description that a project file holds; empty when it has none or cannot be read.
std::string DescriptionIn(const std::filesystem::path& path) {
    const Result<std::string> text = ReadWholeFile(path, kLargestProjectFile);
    if (!text) return {};
    ProjectLines lines(*text);
    while (!lines.AtEnd() && !lines.PassKey(kDescriptionKey)) lines.LastText();
    std::string description;
    while (!lines.AtEnd()) description += lines.LastText();
    return description;
}

FileChange Open(const std::string& title, Project& project, MessageBoxes& boxes) {
    switch (OpenProject(project, project.ProjectName, boxes)) {
        case OpenOutcome::Opened:
            return {.done = true, .title = title, .network = NetworkChange::Replaced};
        case OpenOutcome::TooOld:
            return {.done = true, .title = kNewProject, .network = NetworkChange::Emptied};
        case OpenOutcome::Missing:
            return {.done = true, .title = title};
        case OpenOutcome::Malformed:
        case OpenOutcome::Unreadable:
            break;
    }
    return {};
}

FileChange OpenAs(std::string path, const std::string& title, const std::string& description,
                  Project& project, MessageBoxes& boxes) {
    std::string formerName = std::exchange(project.ProjectName, std::move(path));
    std::string formerDescription = std::exchange(project.ProjectDescription, description);
    FileChange change = Open(title, project, boxes);
    if (!change.done) project.ProjectName = std::move(formerName);
    if (change.network == NetworkChange::None) {
        project.ProjectDescription = std::move(formerDescription);
    }
    return change;
}

FileChange SaveAs(const FileForm& form, Project& project, MessageBoxes& boxes) {
    std::string formerDescription = std::exchange(project.ProjectDescription, form.description);
    std::string path = WithExtension(form.path);
    if (SaveProject(project, path, boxes) != SaveOutcome::Saved) {
        project.ProjectDescription = std::move(formerDescription);
        return {};
    }
    project.ProjectName = std::move(path);
    return {.done = true, .title = form.name};
}

}  // namespace

std::string_view FileFormCaption(FilePurpose purpose) {
    return purpose == FilePurpose::Save ? "Idrova - Save project" : "Idrova - Open project";
}

FileForm StartFileForm(FilePurpose purpose, const std::filesystem::path& folder,
                       const Project& project) {
    FileForm form;
    form.purpose = purpose;
    form.folder = form.path = folder.string();
    if (purpose == FilePurpose::Save) form.description = project.ProjectDescription;
    return form;
}

void ChooseFolder(FileForm& form, const std::filesystem::path& folder) {
    form.folder = folder.string();
    form.path = form.name.empty() ? form.folder : JoinPath(form.folder, form.name);
}

void TypeFilter(FileForm& form, std::string_view text) {
    form.filter = text;
    if (!HasForbiddenCharacter(text)) form.pattern = text;
}

void TypeName(FileForm& form, std::string_view text, MessageBoxes& boxes) {
    form.name = text;
    if (HasForbiddenCharacter(text)) {
        boxes.Show(kNameNotAllowed);
        form.name.clear();
    }
    form.path = JoinPath(form.folder, form.name);
}

void ClickFile(FileForm& form, std::string_view name, MessageBoxes& boxes) {
    TypeName(form, name, boxes);
    form.description = DescriptionIn(JoinPath(form.folder, name));
}

void DoubleClickFile(FileForm& form, std::string_view name) {
    form.path = JoinPath(form.folder, name);
}

FileChange ConfirmFileForm(const FileForm& form, Project& project, MessageBoxes& boxes) {
    if (form.name.empty()) return {};
    if (form.purpose == FilePurpose::Save) return SaveAs(form, project, boxes);
    return OpenAs(NameToOpen(form.path), form.name, form.description, project, boxes);
}

FileChange OpenNamedFile(const std::filesystem::path& path, Project& project, MessageBoxes& boxes) {
    return OpenAs(path.string(), path.filename().string(), DescriptionIn(path), project, boxes);
}

std::filesystem::path NearestFolder(std::filesystem::path folder) {
    std::error_code ignored;
    while (!std::filesystem::is_directory(folder, ignored) && folder.has_relative_path()) {
        folder = folder.parent_path();
    }
    return folder;
}

}  // namespace idrova
