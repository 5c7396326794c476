// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editor_state.h"
#include "shell/shell_commands.h"
#include "ui/frame/commands.h"
#include "ui/frame/mdi.h"
#include "ui/frame/menu_bar.h"
#include "ui/kit/child_windows.h"
#include "ui/program.h"
#include "ui/windows/frm_help.h"
#include "ui/windows/frm_logo.h"

namespace idrova {

namespace {

void SwitchMode(MDI& mdi, WorkMode mode) {
    Program& program = mdi.State();
    EnterMode(mode, program.project, program.shell);
    AbortInsertion(program.editor);
    if (mode == WorkMode::Graphic) {
        program.editor.framesEnabled = true;
        program.handOvers.RereadComponents();
    }
    mdi.ShowMode();
    mdi.ShowNetwork();
}

}  // namespace

void AttachShellCommands(MDI& mdi) {
    MenuBar& menu = mdi.Menu();
    Program& program = mdi.State();
    menu.Attach("Esci", [&mdi, &program] {
        if (ConfirmExit(program.boxes)) mdi.close();
    });
    menu.Attach("Grafico", [&mdi] { SwitchMode(mdi, WorkMode::Graphic); });
    menu.Attach("Tabella", [&mdi] { SwitchMode(mdi, WorkMode::Table); });
    menu.Attach("sintub", [&mdi] { SwitchMode(mdi, WorkMode::SinglePipe); });
    menu.Attach("Helpslinea", [&program] { program.shell.HintsShown = !program.shell.HintsShown; });
    menu.Attach("Help", [&program] { ShowManualNotice(program.boxes); });
    menu.Attach("Logo", [&mdi] { mdi.Windows().Open("FrmLogo", [] { return new FrmLogo; }); });
    mdi.Hints().closedByUser = [&mdi, &program] {
        program.shell.HintsShown = false;
        mdi.ShowSettings();
    };
}

}  // namespace idrova
