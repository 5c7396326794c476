// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// What must hold after every action on the drawing and does not, in plain words: what must hold
/// for the tables (model/invariants.h), points share no cell (a component's two excepted), crossed
/// cells and node marks follow from pipes and points, components stand between two pieces, what is
/// drawn is what the project holds.
std::vector<std::string> BrokenInvariants(const Project& project, const Editor& editor);

/// True when the project, written to a file and read again, is written the same.
bool SurvivesReopening(const Project& project);

}  // namespace idrova
