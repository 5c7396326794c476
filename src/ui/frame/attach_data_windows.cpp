// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/commands.h"
#include "ui/frame/mdi.h"
#include "ui/frame/menu_bar.h"
#include "ui/kit/child_windows.h"
#include "ui/windows/frm_con.h"
#include "ui/windows/frm_flu.h"
#include "ui/windows/frm_percon.h"
#include "ui/windows/frm_pmin.h"
#include "ui/windows/frm_pompa.h"
#include "ui/windows/frm_rug.h"
#include "ui/windows/frm_vel.h"

namespace idrova {

namespace {

template <typename Window>
void AttachWindow(MDI& mdi, std::string_view item, std::string_view name) {
    mdi.Menu().Attach(item, [&mdi, name] {
        mdi.Windows().Open(name, [&mdi] { return new Window(mdi.State()); });
    });
}

}  // namespace

void AttachDataWindows(MDI& mdi) {
    AttachWindow<FrmFlu>(mdi, "Fluido", "FrmFlu");
    AttachWindow<FrmPompa>(mdi, "Pompe", "FrmPompa");
    AttachWindow<FrmPerCon>(mdi, "PerditeCon", "FrmPerCon");
    AttachWindow<FrmRug>(mdi, "tt", "FrmRug");
    AttachWindow<FrmVel>(mdi, "Veloce", "FrmVel");
    AttachWindow<FrmCon>(mdi, "Editor", "FrmCon");
    AttachWindow<FrmPMin>(mdi, "PresMini", "FrmPMin");
    mdi.Menu().Attach("Temperatura", [&mdi] {
        ChildWindow* window =
            mdi.Windows().Open("FrmPMin", [&] { return new FrmPMin(mdi.State()); });
        if (auto* data = dynamic_cast<FrmPMin*>(window)) data->GoToTemperature();
    });
}

}  // namespace idrova
