// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "base/message_boxes.h"
#include "model/project.h"
#include "physdata/fluids.h"

namespace idrova {

/// The buttons of the fluid window. `selected` is the slot last chosen in its list, 0 for none;
/// `folder` holds the database. In a record, a typed number that exceeds a single is the largest
/// one.

/// What the window shows when it opens: the fluid in use, with the exact values that are computed
/// with; the two that are only kept come from the record of its name. Empty when none is in use.
FluidFields ShowFluidInUse(const Settings& settings, const FluidDb& db);

/// The slot of the record whose name was typed over values that are all empty, or still as `opened`
/// showed them: it is what the user means. 0 when there is none.
int MeantFluid(const FluidDb& db, const FluidFields& fields, const FluidFields& opened);

/// "Use": the typed values become the current fluid, named "[selected] name" (the name alone when
/// none was chosen). Without any value it is told in a box and false.
bool UseFluid(Project& project, int selected, const FluidFields& fields, MessageBoxes& boxes);

/// After "Use": with pipes drawn, says that volume flows must be given again.
void TellVolumeFlows(const Project& project, MessageBoxes& boxes);

/// "Save": the typed values into the chosen fluid, whose `userDefined` stays.
EditOutcome SaveFluid(FluidDb& db, int selected, const FluidFields& fields,
                      const std::filesystem::path& folder, MessageBoxes& boxes);

/// "Save as": the typed values as a new fluid. `predefined` is the check box.
EditOutcome SaveFluidAs(FluidDb& db, const FluidFields& fields, bool predefined,
                        const std::filesystem::path& folder, MessageBoxes& boxes);

/// "Delete": the fluid in `slot`; the database is then loaded again.
EditOutcome DeleteFluid(FluidDb& db, int slot, const std::filesystem::path& folder,
                        MessageBoxes& boxes);

}  // namespace idrova
