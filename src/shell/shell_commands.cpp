// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/shell_commands.h"

#include "shell/messages.h"

namespace idrova {

bool ConfirmExit(MessageBoxes& boxes) {
    return boxes.Show(kExitQuestion) == Answer::Ok;
}

void ShowManualNotice(MessageBoxes& boxes) {
    boxes.Show(kManualNotice);
}

}  // namespace idrova
