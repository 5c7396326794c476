// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/shell_state.h"

namespace idrova {

ModeView ViewOf(WorkMode mode) {
    switch (mode) {
        case WorkMode::Table:
            return {.window = "FrmTable", .calculate = true};
        case WorkMode::SinglePipe:
            return {.window = "FrmSin"};
        case WorkMode::Graphic:
            break;
    }
    return {.window = "FrmCel", .drawingTools = true, .calculate = true};
}

void EnterMode(WorkMode mode, Project& project, ShellState& shell) {
    project.settings.Mode = mode;
    shell.HintsShown = mode == WorkMode::Graphic;
}

}  // namespace idrova
