// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "model/project.h"

namespace idrova {

/// What does not hold in the tables of a project and must, as "pipe 3 must end in live points":
/// counts within capacities, straight pipes between live points in their end cells, positions in
/// the centres of cells of the grid, known kinds, finite numbers, flags in step. Empty for every
/// project that was opened, saved or edited.
std::vector<std::string> BrokenInvariants(const Project& project);

}  // namespace idrova
