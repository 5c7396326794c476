// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/file_commands.h"

#include "physdata/pump_constants.h"
#include "physdata/settings_file.h"
#include "projectfile/file_form.h"
#include "projectfile/messages.h"
#include "projectfile/project_file.h"
#include "projectfile/unsaved_copy.h"
#include "ui/frame/mdi.h"
#include "ui/frame/menu_bar.h"
#include "ui/frame/messages.h"
#include "ui/frame/recent_menu.h"
#include "ui/kit/child_windows.h"
#include "ui/program.h"
#include "ui/windows/frm_file.h"

namespace idrova {

namespace {

/// The editor is made again from the network that was put in place, and the windows that belong to
/// it are opened and closed.
void TakeDrawing(MDI& mdi) {
    Program& program = mdi.State();
    CompletePumpConstants(program.project, program.components.pumps);
    RedrawProject(program.project, program.editor);
    program.history.StartAnew(program.project, program.editor);
    program.records.erase(WorkMode::Graphic);
    program.reportStored = true;     // a report of the network before
    mdi.Windows().Close("FrmFile");  // it shows name and description of the network before
    const std::string_view window = ViewOf(program.project.settings.Mode).window;
    if (mdi.Windows().Find(window) == nullptr) mdi.OpenModeWindow();
}

/// The same, and the table texts.
void TakeNetwork(MDI& mdi, NetworkChange change) {
    Program& program = mdi.State();
    const bool isDrawn = program.project.settings.Mode == WorkMode::Graphic;
    if (isDrawn || change == NetworkChange::Emptied) RereadComponents(program);
    program.table = TableTexts();
    FillTable(program.project, program.table);
    program.tableModel.StartAnew();
    program.records.erase(WorkMode::Table);
    TakeDrawing(mdi);
}

/// Keeps what was left unsaved; what there is to say of it.
std::string Kept(MDI& mdi, const std::optional<std::string>& unsaved) {
    const Result<std::string> kept = KeepUnsaved(unsaved, mdi.State().folder);
    return kept ? *kept : kept.Error();
}

/// After another project has been opened, which may be one for another mode.
void SayOpened(MDI& mdi, const std::string& kept) {
    const Project& project = mdi.State().project;
    const bool isTable = project.numtubo == 0 && CountTableRows(project) > 0;
    if (!isTable || project.settings.Mode != WorkMode::Graphic) return mdi.Say(kept);
    mdi.Say(kProjectIsTable + (kept.empty() ? kept : ". " + kept));
}

/// Shows what became of a file command.
void Take(MDI& mdi, const FileChange& change, const std::filesystem::path& folder) {
    Program& program = mdi.State();
    program.titleName = change.title;
    program.lastFolder = folder;
    if (change.network == NetworkChange::None) return;
    TakeNetwork(mdi, change.network);
    program.offered.reset();
    if (change.network == NetworkChange::Emptied) return;
    if (!IsUnsavedCopy(program.project.ProjectName, program.folder)) {
        mdi.Recent().Add(program.project.ProjectName);
    }
    program.offered = ReadSettingsOf(program.project.ProjectName);
    program.whenOffered = PresentSettings(program);
    if (SettingsOffer(program.offered, program.whenOffered).empty()) program.offered.reset();
}

/// True while the settings beside the project are on offer and those in use have not been changed.
bool AreAsOffered(const Program& program) {
    return program.offered &&
           SettingsDifference(program.whenOffered, PresentSettings(program)).empty();
}

/// Puts the settings beside the project that was saved. Others there, which are still on offer,
/// stay as long as the user has changed none by hand.
void FinishSaving(MDI& mdi, const std::string& nameBefore) {
    Program& program = mdi.State();
    const std::string& name = program.project.ProjectName;
    mdi.Recent().Add(name);
    if (name == nameBefore && AreAsOffered(program)) return;
    program.offered.reset();
    const Status written = WriteSettingsOf(name, PresentSettings(program));
    if (!written) program.boxes.Show(SaveFailed(written.Error()));
}

/// True when the file window is to close.
bool Confirm(MDI& mdi, const FileForm& form) {
    Program& program = mdi.State();
    const auto unsaved = UnsavedText(program.project);
    const std::string nameBefore = program.project.ProjectName;
    const FileChange change = ConfirmFileForm(form, program.project, program.boxes);
    if (!change.done) return false;
    Take(mdi, change, form.folder);
    if (form.purpose == FilePurpose::Save) FinishSaving(mdi, nameBefore);
    if (form.purpose == FilePurpose::Open) SayOpened(mdi, Kept(mdi, unsaved));
    mdi.ShowState();
    return true;
}

void ShowFileWindow(MDI& mdi, FilePurpose purpose) {
    auto* open = dynamic_cast<FrmFile*>(mdi.Windows().Find("FrmFile"));
    if (open != nullptr && open->Purpose() != purpose) {
        open->CloseWindow();
    } else if (open != nullptr) {
        open->ShowFolder();
    }
    mdi.Windows().Open("FrmFile", [&mdi, purpose] {
        return new FrmFile(mdi.State(), purpose,
                           [&mdi](const FileForm& form) { return Confirm(mdi, form); });
    });
}

void Save(MDI& mdi) {
    Program& program = mdi.State();
    if (IsUnsavedCopy(program.project.ProjectName, program.folder)) {
        return ShowFileWindow(mdi, FilePurpose::Save);  // the next copy would take its place
    }
    const auto saved = SaveToOwnFile(program.project, program.boxes);
    if (!saved) ShowFileWindow(mdi, FilePurpose::Save);
    if (saved == SaveOutcome::Saved) FinishSaving(mdi, program.project.ProjectName);
}

/// A new project keeps the rows of the table, so its texts and its edits stay as well.
void New(MDI& mdi) {
    Program& program = mdi.State();
    const auto unsaved = UnsavedText(program.project);
    if (!NewProject(program.project, program.boxes)) return;
    program.titleName = program.project.ProjectName;
    program.offered.reset();
    RereadComponents(program);
    TakeDrawing(mdi);
    mdi.Say(Kept(mdi, unsaved));
}

}  // namespace

void AttachFileCommands(MDI& mdi) {
    MenuBar& menu = mdi.Menu();
    menu.Attach("Nuovo", [&mdi] { New(mdi); });
    menu.Attach("Apri", [&mdi] { ShowFileWindow(mdi, FilePurpose::Open); });
    menu.Attach("Salva", [&mdi] { Save(mdi); });
    menu.Attach("Salva2", [&mdi] { ShowFileWindow(mdi, FilePurpose::Save); });
}

void OpenFile(MDI& mdi, const std::filesystem::path& path) {
    Program& program = mdi.State();
    const auto unsaved = UnsavedText(program.project);
    const FileChange change = OpenNamedFile(path, program.project, program.boxes);
    program.lastFolder = path.parent_path();
    if (!change.done) return;
    Take(mdi, change, path.parent_path());
    SayOpened(mdi, Kept(mdi, unsaved));
    mdi.ShowState();
}

void OpenRecentFile(MDI& mdi, const std::filesystem::path& path) {
    std::error_code ignored;
    if (std::filesystem::exists(path, ignored)) {
        mdi.TakeEdits();
        return OpenFile(mdi, path);
    }
    mdi.Recent().Remove(path);
    mdi.State().boxes.Show(kFileMissing);
}

}  // namespace idrova
