// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "base/message_boxes.h"

namespace idrova {

constexpr const char* kProjectIsTable = "This project is a table: choose Mode, Table (Ctrl+2)";

/// `names` of files, with commas between.
inline MessageBox OverwriteExported(const std::string& names) {
    return {"Do you want to overwrite " + names + " ?", "Export", BoxIcon::Question,
            BoxButtons::YesNo};
}

}  // namespace idrova
