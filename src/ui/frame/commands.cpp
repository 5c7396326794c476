// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/commands.h"

#include "ui/frame/mdi.h"
#include "ui/frame/menu_bar.h"
#include "ui/program.h"

namespace idrova {

void AttachCommands(MDI& mdi) {
    mdi.Menu().beforeCommand = [&mdi] { mdi.TakeEdits(); };
    mdi.Menu().afterCommand = [&mdi] { mdi.ShowSettings(); };
    mdi.State().showSettings = [&mdi] { mdi.ShowSettings(); };
    mdi.State().showOutcome = [&mdi] { mdi.ShowOutcome(); };
    AttachShellCommands(mdi);
    AttachSettingCommands(mdi);
    AttachProjectCommands(mdi);
    AttachRunCommands(mdi);
    AttachResultCommands(mdi);
    AttachDrawing(mdi);
    AttachDataWindows(mdi);
}

}  // namespace idrova
