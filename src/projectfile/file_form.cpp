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

FileChange SaveAs(const FileForm& form, Project& project, MessageBoxes& boxes) {
    const SaveOutcome saved = SaveProject(project, project.ProjectName, boxes);
    if (saved == SaveOutcome::Failed) return {};
    return {.done = true, .title = form.Text3};
}

FileChange OpenAs(const FileForm& form, Project& project, MessageBoxes& boxes) {
    switch (OpenProject(project, project.ProjectName, boxes)) {
        case OpenOutcome::Opened:
            return {.done = true, .title = form.Text3, .network = NetworkChange::Replaced};
        case OpenOutcome::TooOld:
            return {.done = true, .title = kNewProject, .network = NetworkChange::Emptied};
        case OpenOutcome::Missing:
            return {.done = true, .title = form.Text3};
        case OpenOutcome::Malformed:
        case OpenOutcome::Unreadable:
            break;
    }
    return {};
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

FileChange ConfirmFileForm(const FileForm& form, Project& project, MessageBoxes& boxes) {
    if (form.Text3.empty()) return {};
    std::string formerName = std::exchange(project.ProjectName, WithExtension(form.Text2));
    std::string formerDescription = std::exchange(project.ProjectDescription, form.Text4);
    const bool opens = form.purpose == FilePurpose::Open;
    FileChange change = opens ? OpenAs(form, project, boxes) : SaveAs(form, project, boxes);
    if (!change.done) project.ProjectName = std::move(formerName);
    const bool missing = opens && change.network == NetworkChange::None;
    if (!change.done || missing) project.ProjectDescription = std::move(formerDescription);
    return change;
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
