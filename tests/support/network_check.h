// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "model/project.h"

namespace idrova {

using Faults = std::vector<std::string>;

/// How points and cells of a drawn project fit together: each adds what it finds to `faults`.
void CheckPoints(const Project& project, Faults& faults);
void CheckCells(const Project& project, Faults& faults);

/// "what number", for a fault.
std::string Named(const char* what, int number);

}  // namespace idrova
