// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "base/message_boxes.h"

namespace idrova {

/// True when the user wants to leave. Unsaved work is not asked for.
bool ConfirmExit(MessageBoxes& boxes);

/// Tells where the user manual is.
void ShowManualNotice(MessageBoxes& boxes);

}  // namespace idrova
