// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "model/project.h"

namespace idrova {

/// What is wrong with the tables of a project, in words for a developer; empty for every project
/// that was opened, saved or edited rightly: counts within capacities, pipes between live points,
/// positions in the centres of cells of the grid, known kinds, finite numbers, flags in step.
/// That pipes run along the grid and meet their points is not looked at.
std::vector<std::string> BrokenInvariants(const Project& project);

}  // namespace idrova
