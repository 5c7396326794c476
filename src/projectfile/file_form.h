// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/message_boxes.h"
#include "model/project.h"

namespace idrova {

enum class FilePurpose { Open, Save };

/// What the project file window shows.
struct FileForm {
    FilePurpose purpose = FilePurpose::Open;
    std::string folder;            ///< the chosen folder
    std::string pattern = "*.iv";  ///< what the file list shows
    std::string filter = "*.iv";   ///< as typed
    std::string path;              ///< folder and name
    std::string name;              ///< of the file
    std::string description;       ///< of the project
};

std::string_view FileFormCaption(FilePurpose purpose);

/// The form as it opens; for saving, with the description that the project has.
FileForm StartFileForm(FilePurpose purpose, const std::filesystem::path& folder,
                       const Project& project);

void ChooseFolder(FileForm& form, const std::filesystem::path& folder);

/// A filter with one of the characters : ; / \ is not applied.
void TypeFilter(FileForm& form, std::string_view text);

/// A name with one of those characters is refused in a box and emptied.
void TypeName(FileForm& form, std::string_view text, MessageBoxes& boxes);

/// Takes a file of the list, and shows the description it holds. The project is not touched.
void ClickFile(FileForm& form, std::string_view name, MessageBoxes& boxes);
void DoubleClickFile(FileForm& form, std::string_view name);

enum class NetworkChange { None, Replaced, Emptied };

/// What confirming the form did, for the owner of the windows to show.
struct FileChange {
    bool done = false;  ///< the window is to close; else project and window are as they were
    std::string title;  ///< the project's name as the title shows it from now on
    NetworkChange network = NetworkChange::None;  ///< table rows and description go with it
};

/// Opens or saves. The project takes the name of the form, and its description unless the file to
/// open does not exist. ".iv" is appended to the name, unless only a file of the very name can be
/// opened. Not done: without a name, with an old file that is not to be replaced, and with one that
/// cannot be written or read, or is malformed, which is told in a box.
FileChange ConfirmFileForm(const FileForm& form, Project& project, MessageBoxes& boxes);

/// Opens a file whose name is taken as it stands.
FileChange OpenNamedFile(const std::filesystem::path& path, Project& project, MessageBoxes& boxes);

/// `folder`, or the closest folder above it that exists.
std::filesystem::path NearestFolder(std::filesystem::path folder);

}  // namespace idrova
