// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "base/message_boxes.h"
#include "physdata/component_lists.h"

namespace idrova {

/// The buttons of the pump and of the loss window. `slot` is the list position + 1, 0 when none is
/// chosen; `folder` holds the databases.

/// "Save": adds the typed pump, whose two flow rates and two prevalences must differ as singles;
/// both databases are then loaded again.
EditOutcome SavePump(ComponentLists& lists, const PumpFields& fields,
                     const std::filesystem::path& folder, MessageBoxes& boxes);

/// "Delete", without a question; both databases are then loaded again.
EditOutcome DeletePump(ComponentLists& lists, int slot, const std::filesystem::path& folder,
                       MessageBoxes& boxes);

/// "Save": adds the typed loss. Unless refused, the window then closes and opens again.
EditOutcome SaveLoss(ComponentLists& lists, const LossFields& fields,
                     const std::filesystem::path& folder, MessageBoxes& boxes);

/// "Delete"; both databases are then loaded again.
EditOutcome DeleteLoss(ComponentLists& lists, int slot, const std::filesystem::path& folder,
                       MessageBoxes& boxes);

}  // namespace idrova
