// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/commands.h"

#include <QDesktopServices>
#include <QUrl>

#include "hydraulics/run_settings.h"
#include "physdata/pipe_settings.h"
#include "results/editor_setting.h"
#include "results/messages.h"
#include "results/report.h"
#include "results/results_file.h"
#include "shell/messages.h"
#include "ui/frame/edit_commands.h"
#include "ui/frame/export_command.h"
#include "ui/frame/file_commands.h"
#include "ui/frame/mdi.h"
#include "ui/frame/menu_bar.h"
#include "ui/frame/run_commands.h"
#include "ui/frame/view_commands.h"
#include "ui/kit/child_windows.h"
#include "ui/kit/desktop_settings.h"
#include "ui/kit/print_text.h"
#include "ui/kit/qt_text.h"
#include "ui/kit/start_program.h"
#include "ui/program.h"
#include "ui/windows/frm_con.h"
#include "ui/windows/frm_flu.h"
#include "ui/windows/frm_lim.h"
#include "ui/windows/frm_logo.h"
#include "ui/windows/frm_percon.h"
#include "ui/windows/frm_pmin.h"
#include "ui/windows/frm_pompa.h"
#include "ui/windows/frm_ris.h"
#include "ui/windows/frm_rug.h"
#include "ui/windows/frm_vel.h"

namespace idrova {

namespace {

constexpr const char* kToolBarKey = "toolBarShown";

void SwitchMode(MDI& mdi, WorkMode mode) {
    Program& program = mdi.State();
    EnterMode(mode, program.project, program.shell);
    AbortInsertion(program.editor);
    if (mode == WorkMode::Graphic) {
        program.editor.framesEnabled = true;
        RereadComponents(program);
    }
    mdi.OpenModeWindow();
}

void AttachModes(MDI& mdi) {
    MenuBar& menu = mdi.Menu();
    menu.Attach("Grafico", [&mdi] { SwitchMode(mdi, WorkMode::Graphic); });
    menu.Attach("Tabella", [&mdi] { SwitchMode(mdi, WorkMode::Table); });
    menu.Attach("sintub", [&mdi] { SwitchMode(mdi, WorkMode::SinglePipe); });
}

void SwitchPressureUnit(Program& program, Unit unit) {
    ChoosePressureUnit(program.project.settings, unit);
    FillTable(program.project, program.table);
}

void AttachSettings(MenuBar& menu, Program& program) {
    Settings& settings = program.project.settings;
    for (const RoughnessPreset& preset : kRoughnessPresets) {
        menu.Attach(preset.item, [&program, &preset] {
            program.project.settings.Roughness = preset.roughness;
            program.shell.roughnessItem = preset.item;
        });
    }
    menu.Attach("Circolare", [&settings] { settings.SectionType = Section::Circular; });
    menu.Attach("Rettangolare", [&settings] { settings.SectionType = Section::Rectangular; });
    menu.Attach("p_bar", [&program] { SwitchPressureUnit(program, Unit::Bar); });
    menu.Attach("p_mbar", [&program] { SwitchPressureUnit(program, Unit::MilliBar); });
    menu.Attach("Cor1", [&settings] { ChooseIncompressible(settings); });
    menu.Attach("Cor2",
                [&program] { ChooseCompressible(program.project.settings, program.boxes); });
}

void PrintLastResults(MDI& mdi) {
    Program& program = mdi.State();
    const Project& project = program.project;
    const std::string report =
        program.report.empty()
            ? ReportText(project.settings, project.ProjectName, program.work, CurrentReportTime())
            : program.report;
    PrintReport(report, program.boxes, [&](const std::string& text) {
        PrintText(text, program.lastFolder, &mdi, program.boxes);
    });
}

/// What was computed at once is put into the results file when somebody wants to see that.
void StoreShownReport(Program& program) {
    if (program.reportStored) return;
    const Status stored = StoreReport(program.project.settings, program.report, program.folder);
    if (!stored) program.boxes.Show({stored.Error(), kResultsTitle});
    program.reportStored = true;
}

template <typename Window>
void OpenWindow(MDI& mdi, std::string_view name) {
    mdi.Windows().Open(name, [&mdi] { return new Window(mdi.State()); });
}

template <typename Window>
void AttachWindow(MDI& mdi, std::string_view item, std::string_view name) {
    mdi.Menu().Attach(item, [&mdi, name] { OpenWindow<Window>(mdi, name); });
}

void AttachResults(MDI& mdi) {
    MenuBar& menu = mdi.Menu();
    Program& program = mdi.State();
    menu.Attach("Stampa", [&mdi] { PrintLastResults(mdi); });
    menu.Attach("Risultati", [&mdi, &program] {
        StoreShownReport(program);
        ShowResults(
            program.folder, program.boxes, [&mdi, &program](const auto& editor, const auto& file) {
                return StartWithFile(editor, file, mdi, [&program](const std::string& reason) {
                    program.boxes.Show({reason, kShowTitle});
                });
            });
        if (!IsFile(ConfiguredEditor(program.folder))) OpenWindow<FrmRis>(mdi, "FrmRis");
    });
    AttachWindow<FrmRis>(mdi, "TabRisultati", "FrmRis");
    menu.Attach("Esporta", [&mdi] { ExportFromWindow(mdi); });
    menu.Attach("Elris", [&program] { DeleteResults(program.folder, program.boxes); });
    menu.Attach("Risultatiseq", [&program] {
        program.project.settings.ResultsInSequence = !program.project.settings.ResultsInSequence;
    });
}

void AttachDataWindows(MDI& mdi) {
    mdi.Menu().Attach("BarraStrumenti", [&mdi] {
        ShellState& shell = mdi.State().shell;
        shell.ToolBarShown = !shell.ToolBarShown;
        DesktopSettings().setValue(kToolBarKey, shell.ToolBarShown);
    });
    AttachWindow<FrmFlu>(mdi, "Fluido", "FrmFlu");
    AttachWindow<FrmPompa>(mdi, "Pompe", "FrmPompa");
    AttachWindow<FrmPerCon>(mdi, "PerditeCon", "FrmPerCon");
    AttachWindow<FrmRug>(mdi, "tt", "FrmRug");
    AttachWindow<FrmVel>(mdi, "Veloce", "FrmVel");
    AttachWindow<FrmCon>(mdi, "Editor", "FrmCon");
    AttachWindow<FrmLim>(mdi, "Limits", "FrmLim");
    AttachWindow<FrmPMin>(mdi, "PresMini", "FrmPMin");
    mdi.Menu().Attach("Temperatura", [&mdi] {
        ChildWindow* window =
            mdi.Windows().Open("FrmPMin", [&mdi] { return new FrmPMin(mdi.State()); });
        if (auto* data = dynamic_cast<FrmPMin*>(window)) data->GoToTemperature();
    });
}

void ShowManual(MDI& mdi) {
    const Program& program = mdi.State();
    program.boxes.Show(kManualNotice);
    const QString manual = PathToQt(program.shipped.manual);
    if (!manual.isEmpty() && QDesktopServices::openUrl(QUrl::fromLocalFile(manual))) return;
    mdi.Say(ManualNotShown(program.shipped.manual.string()));
}

void AttachHelp(MDI& mdi) {
    MenuBar& menu = mdi.Menu();
    Program& program = mdi.State();
    menu.Attach("Helpslinea", [&program] { program.shell.HintsShown = !program.shell.HintsShown; });
    menu.Attach("Help", [&mdi] { ShowManual(mdi); });
    menu.Attach("Logo", [&mdi] { mdi.Windows().Open("FrmLogo", [] { return new FrmLogo; }); });
}

}  // namespace

void AttachCommands(MDI& mdi) {
    Program& program = mdi.State();
    mdi.Menu().run = [&mdi](const std::function<void()>& command) {
        mdi.TakeEdits();
        mdi.Say({});
        command();
        mdi.ShowState();
    };
    mdi.Menu().Attach("Esci", [&mdi, &program] {
        if (program.boxes.Show(kExitQuestion) == Answer::Ok) mdi.close();
    });
    program.shell.ToolBarShown = DesktopSettings().value(kToolBarKey, true).toBool();
    AttachFileCommands(mdi);
    AttachEditCommands(mdi);
    AttachViewCommands(mdi);
    AttachModes(mdi);
    AttachSettings(mdi.Menu(), program);
    AttachRunCommands(mdi);
    AttachResults(mdi);
    AttachDataWindows(mdi);
    AttachHelp(mdi);
}

}  // namespace idrova
