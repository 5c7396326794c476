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

std::array<std::string_view, 4> ModeHints(WorkMode mode) {
    if (mode == WorkMode::SinglePipe) {
        return {"option Unknown:", "choose what is to be computed",
                "type the other values:", "the unknown one is computed at once"};
    }
    return {"type into a cell:", "a value; an empty pressure or flow rate is to be computed",
            "key F5:", "compute the table"};
}

void EnterMode(WorkMode mode, Project& project, ShellState& shell) {
    project.settings.Mode = mode;
    shell.HintsShown = mode == WorkMode::Graphic;
}

}  // namespace idrova
