// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/component_insertion.h"
#include "ui/frame/commands.h"
#include "ui/frame/mdi.h"
#include "ui/panel/frm_com.h"
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
