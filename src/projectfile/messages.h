// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "base/message_boxes.h"

namespace idrova {

constexpr FixedMessage kLeaveProject{"Do you want to leave current project ?", "New project",
                                     BoxIcon::Question, BoxButtons::OkCancel};
constexpr FixedMessage kOverwriteFile{"The file esists, do you want to overwrite it ?", "Save file",
                                      BoxIcon::Information, BoxButtons::YesNo};
constexpr FixedMessage kFileMissing{"File does not exist", "Open file", BoxIcon::Information};
constexpr FixedMessage kFileTooOld{"Projects saved before version 2.5.0 can nor be opened",
                                   "Open file"};
constexpr FixedMessage kNameNotAllowed{"Name not allowed", "Save project"};

inline MessageBox SaveFailed(const std::string& reason) {
    return {reason, "Save file"};
}

inline MessageBox OpenFailed(const std::string& reason) {
    return {reason, "Open file"};
}

inline MessageBox FolderUnreadable(const std::string& folder) {
    return {"The folder " + folder + " cannot be read", "Project files"};
}

inline std::string UnsavedKept(const std::string& file) {
    return "Unsaved work is kept in " + file;
}

inline std::string UnsavedLost(const std::string& reason) {
    return "Unsaved work could not be kept: " + reason;
}

inline MessageBox ProjectMalformed(const std::string& fault) {
    return {"The file is not a valid project, " + fault, "Open file"};
}

}  // namespace idrova
