// SPDX-License-Identifier: GPL-3.0-or-later
#include <optional>

#include "hydraulics/compute_network.h"
#include "hydraulics/run_settings.h"
#include "results/messages.h"
#include "table/table_network.h"
#include "ui/frame/commands.h"
#include "ui/frame/mdi.h"
#include "ui/frame/menu_bar.h"
#include "ui/frame/run_services.h"
#include "ui/panel/frm_com.h"
#include "ui/program.h"
#include "ui/windows/frm_ava.h"

namespace idrova {

namespace {

/// Fills the working copy from the drawing or from the table; false when the table is refused.
bool FillWorkNetwork(Program& program) {
    if (program.project.settings.Mode == WorkMode::Table) {
        return TableToNetwork(program.project, program.table, program.work, program.boxes);
    }
    CopyNetwork(program.project, program.work);
    return true;
}

/// Takes the progress window away before any message that comes during the run.
class BoxesOfRun final : public MessageBoxes {
  public:
    BoxesOfRun(MessageBoxes& boxes, std::optional<FrmAva>& progress)
        : boxes_(boxes), progress_(progress) {}

    Answer Show(const MessageBox& box) override {
        progress_.reset();
        return boxes_.Show(box);
    }

  private:
    MessageBoxes& boxes_;
    std::optional<FrmAva>& progress_;
};

Outcome Compute(MDI& mdi) {
    Program& program = mdi.State();
    if (!FillWorkNetwork(program)) return {};  // refused
    std::optional<FrmAva> progress;
    BoxesOfRun boxes(program.boxes, progress);
    RunServices services = ServicesOfRun(program, boxes, [&](const Status& stored) {
        progress.reset();
        if (!stored) boxes.Show({stored.Error(), kResultsTitle});
    });
    services.showProgress = [&](const RunProgress& shown) {
        if (!progress) progress.emplace(&mdi);
        progress->ShowProgress(shown.closeness, shown.passes);
    };
    return ComputeNetwork(program.project, program.work, false, services);
}

void Calculate(MDI& mdi) {
    mdi.TakeEdits();
    Program& program = mdi.State();
    program.outcomes[program.project.settings.Mode] = Compute(mdi);
    mdi.ShowOutcome();
    mdi.ShowNetwork();
    mdi.ShowSettings();
}

}  // namespace

void AttachRunCommands(MDI& mdi) {
    Program& program = mdi.State();
    mdi.Panel().calculate = [&mdi] { Calculate(mdi); };
    mdi.Menu().Attach("Ordina",
                      [&program] { MakeFlowRatesPositive(program.project, program.boxes); });
}

}  // namespace idrova
