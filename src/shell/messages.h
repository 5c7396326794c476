// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "base/message_boxes.h"

namespace idrova {

constexpr FixedMessage kExitQuestion{"Do you want to exit ?", "End program", BoxIcon::Question,
                                     BoxButtons::OkCancel};
constexpr const char* kManualFile = "IDROVA.PDF";
constexpr FixedMessage kManualNotice{"The user manual is the file IDROVA.PDF", "Help",
                                     BoxIcon::Information};
constexpr FixedMessage kSmallScreen{"The min resolution must be 1024x768", "Resolution",
                                    BoxIcon::Critical};

inline std::string FolderNotMade(const std::string& folder) {
    return "The folder " + folder + " can not be made";
}

inline std::string ManualNotShown(const std::string& file) {
    return file.empty() ? "The user manual was not found"
                        : "Nothing here shows PDF files: the manual is " + file;
}

}  // namespace idrova
