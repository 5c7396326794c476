// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/mode_windows.h"

#include "ui/drawing/frm_cel.h"
#include "ui/table/frm_table.h"
#include "ui/windows/frm_sin.h"

namespace idrova {

ChildWindow* MakeModeWindow(std::string_view name, Program& program) {
    if (name == "FrmCel") return new FrmCel(program);
    if (name == "FrmTable") return new FrmTable(program);
    if (name == "FrmSin") return new FrmSin(program);
    return nullptr;
}

}  // namespace idrova
