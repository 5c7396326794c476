// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "model/project.h"
#include "physdata/pumps.h"

namespace idrova {

/// Gives each placed pump that has no `PumpConstant` the constant c of a pump in the database with
/// the same name and the same coefficients a and b, as far as a project file keeps them (7 digits).
void CompletePumpConstants(Project& project, const PumpDb& db);

}  // namespace idrova
