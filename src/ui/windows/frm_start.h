// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "base/message_boxes.h"
#include "shell/start_up.h"

namespace idrova {

/// The start of the program: checks the screen, then shows the splash window, at whose end
/// `openMainWindow` is called.
void FrmStart(MessageBoxes& boxes, std::function<void()> openMainWindow,
              int splashMilliseconds = kSplashMilliseconds);

/// Makes the toolkit, the C library and the keypad use the period in numbers, and the wheel leave
/// alone what does not have the keyboard. Once, right after the application object, whose
/// construction takes over the machine's regional settings.
void PrepareInput();

}  // namespace idrova
