// SPDX-License-Identifier: GPL-3.0-or-later
#include <QStatusBar>

#include "editor/editor_state.h"
#include "physdata/component_lists.h"
#include "physdata/pump_constants.h"
#include "projectfile/project_commands.h"
#include "projectfile/project_file.h"
#include "projectfile/unsaved_copy.h"
#include "table/table_texts.h"
#include "ui/frame/commands.h"
#include "ui/frame/mdi.h"
#include "ui/frame/menu_bar.h"
#include "ui/frame/messages.h"
#include "ui/frame/mode_windows.h"
#include "ui/kit/child_window.h"
#include "ui/kit/child_windows.h"
#include "ui/program.h"
#include "ui/windows/frm_file.h"

namespace idrova {

namespace {

void ShowFileWindow(MDI& mdi, FilePurpose purpose) {
    auto* open = dynamic_cast<FrmFile*>(mdi.Windows().Find("FrmFile"));
    if (open != nullptr && open->Purpose() != purpose) {
        open->CloseWindow();
    } else if (open != nullptr) {
        open->ShowFolder();
    }
    mdi.Windows().Open("FrmFile", [&] { return new FrmFile(mdi.State(), purpose); });
}

void Save(MDI& mdi) {
    Program& program = mdi.State();
    if (!SaveToOwnFile(program.project, program.boxes)) ShowFileWindow(mdi, FilePurpose::Save);
}

/// The editor is made again from the network that was put in place, and all that shows it.
void TakeDrawing(MDI& mdi) {
    Program& program = mdi.State();
    CompletePumpConstants(program.project, program.components.pumps);
    RedrawProject(program.project, program.editor);
    program.outcomes.erase(WorkMode::Graphic);
    mdi.ShowOutcome();
    mdi.Windows().Close("FrmFile");  // it shows name and description of the network before
    const bool closed = mdi.Windows().Find(ViewOf(program.project.settings.Mode).window) == nullptr;
    if (closed) mdi.ShowMode();
    mdi.ShowNetwork();
    mdi.ShowSettings();
}

/// The same, and the table texts.
void TakeNetwork(MDI& mdi) {
    Program& program = mdi.State();
    program.table = TableTexts();
    FillTable(program.project, program.table);
    program.tableModel.StartAnew();
    program.outcomes.erase(WorkMode::Table);
    TakeDrawing(mdi);
    const bool isTable = program.project.numtubo == 0 && CountTableRows(program.project) > 0;
    if (isTable && program.project.settings.Mode == WorkMode::Graphic) {
        mdi.statusBar()->showMessage(kProjectIsTable);
    }
}

/// A new project keeps the rows of the table, so its texts and its edits stay as well.
void New(MDI& mdi) {
    Program& program = mdi.State();
    const auto unsaved = UnsavedText(program.project);
    HandOvers steps = program.handOvers;
    steps.ShowNetwork = [&mdi] { TakeDrawing(mdi); };
    if (!NewProject(program.project, program.boxes, steps)) return;
    KeepUnsaved(unsaved, program.folder);
}

void AttachHandOvers(MDI& mdi) {
    Program& program = mdi.State();
    HandOvers& steps = program.handOvers;
    steps.ClearDrawing = [&program] { ClearDrawing(program.editor); };
    steps.RereadComponents = [&program] {
        LoadComponentDatabases(program.components, program.folder, program.boxes);
        program.showComponents();
    };
    steps.ClearTable = [&mdi, &program] {
        program.table = TableTexts();
        mdi.ShowNetwork();
    };
    steps.ShowNetwork = [&mdi] { TakeNetwork(mdi); };
    steps.ShowTitle = [&mdi](std::string_view name) { mdi.ShowTitle(name); };
}

}  // namespace

void AttachProjectCommands(MDI& mdi) {
    AttachHandOvers(mdi);
    MenuBar& menu = mdi.Menu();
    menu.Attach("Nuovo", [&mdi] { New(mdi); });
    menu.Attach("Apri", [&mdi] { ShowFileWindow(mdi, FilePurpose::Open); });
    menu.Attach("Salva", [&mdi] { Save(mdi); });
    menu.Attach("Salva2", [&mdi] { ShowFileWindow(mdi, FilePurpose::Save); });
}

}  // namespace idrova
