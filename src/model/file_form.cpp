// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/file_form.h"

#include <utility>

#include "base/file.h"
#include "model/messages.h"
#include "model/project_file.h"
#include "model/project_keys.h"
#include "model/project_lines.h"

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

/// Saves or opens the file that the project is named after. False when it cannot be written or
/// read, or is malformed: the project's content is then what it was.
bool RunPurpose(FilePurpose purpose, Project& project, MessageBoxes& boxes,
                const HandOvers& handOvers) {
    const std::filesystem::path path = project.ProjectName;
    if (purpose == FilePurpose::Save) {
        return SaveProject(project, path, boxes) != SaveOutcome::Failed;
    }
    const OpenOutcome outcome = OpenProject(project, path, boxes, handOvers);
    return outcome != OpenOutcome::Malformed && outcome != OpenOutcome::Unreadable;
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
    if (!RunPurpose(form.purpose, project, boxes, handOvers)) {
        project.ProjectName = std::move(formerName);
        project.ProjectDescription = std::move(formerDescription);
    } else if (project.ProjectName == path) {  // an old version has detached the file instead
        handOvers.ShowTitle(form.Text3);
    }
    return true;
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
