// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/component_insertion.h"
#include "ui/commands.h"
#include "ui/frm_com.h"
#include "ui/mdi.h"
#include "ui/program.h"

namespace idrova {

void AttachDrawing(MDI& mdi) {
    Program& program = mdi.State();
    mdi.Panel().redraw = [&mdi] { mdi.ShowNetwork(); };
    program.showComponents = [&program] {
        RefreshComponentChoice(program.editor, program.components);
        program.showSettings();
    };
    RefreshComponentChoice(program.editor, program.components);
}

}  // namespace idrova
