// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/mode_windows.h"

#include "ui/frm_cel.h"
#include "ui/frm_sin.h"
#include "ui/frm_table.h"

namespace idrova {

ChildWindow* MakeModeWindow(std::string_view name, Program& program) {
    if (name == "FrmCel") return new FrmCel(program);
    if (name == "FrmTable") return new FrmTable(program);
    if (name == "FrmSin") return new FrmSin(program);
    return nullptr;
}

}  // namespace idrova
