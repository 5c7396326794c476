// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace idrova {

class MDI;

void AttachEditCommands(MDI& mdi);

/// Takes what has changed as a step that can be undone, and names it in the menu.
void ShowSteps(MDI& mdi);

}  // namespace idrova
