// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/version.h"

namespace idrova {

std::string VersionText() {
    return std::string(kVersionNumber) + kVersionRelease;
}

std::string WindowTitle(std::string_view name) {
    return "Idrova " + VersionText() + " - [" + std::string(name) + "]";
}

}  // namespace idrova
