// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/run_commands.h"

#include <optional>

#include "hydraulics/run_settings.h"
#include "shell/run_command.h"
#include "ui/frame/mdi.h"
#include "ui/frame/menu_bar.h"
#include "ui/panel/frm_com.h"
#include "ui/program.h"
#include "ui/windows/frm_ava.h"

namespace idrova {

namespace {

RunRecord Compute(MDI& mdi) {
    Program& program = mdi.State();
    std::optional<FrmAva> progress;
    const auto showProgress = [&](const RunProgress& shown) {
        if (!progress) progress.emplace(&mdi);
        progress->ShowProgress(shown.closeness, shown.passes);
        return true;
    };
    return RunNetwork(program.project, program.table, program.work,
                      {.boxes = program.boxes,
                       .writeReport = StoredReport(program),
                       .showProgress = showProgress,
                       .endProgress = [&progress] { progress.reset(); }});
}

void Calculate(MDI& mdi) {
    mdi.TakeEdits();
    Program& program = mdi.State();
    program.records[program.project.settings.Mode] = Compute(mdi);
    mdi.ShowState();
}

}  // namespace

void AttachRunCommands(MDI& mdi) {
    Program& program = mdi.State();
    mdi.Panel().calculate = [&mdi] { Calculate(mdi); };
    mdi.Menu().Attach("Subito", [&mdi, &program] {
        program.shell.ComputesAtOnce = !program.shell.ComputesAtOnce;
        if (program.shell.ComputesAtOnce) mdi.ShowProblems();
    });
    mdi.Menu().Attach("Ordina",
                      [&program] { MakeFlowRatesPositive(program.project, program.boxes); });
}

}  // namespace idrova
