// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/program.h"

#include "editor/component_insertion.h"

namespace idrova {

void RereadComponents(Program& program) {
    LoadComponentDatabases(program.components, program.folder, program.boxes);
    RefreshComponentChoice(program.editor, program.components);
}

}  // namespace idrova
