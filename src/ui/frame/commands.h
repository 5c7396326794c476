// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace idrova {

class MDI;

/// Attaches every command to its menu item or button.
void AttachCommands(MDI& mdi);

}  // namespace idrova
