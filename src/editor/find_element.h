// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// Selects the drawn pipe of a typed number ("12") or, of a point ("P12"), the lowest pipe that
/// ends there, and scrolls so that the end is seen. False when there is none: nothing changes.
bool FindElement(Project& project, Editor& editor, std::string_view text);

}  // namespace idrova
