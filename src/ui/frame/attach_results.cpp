// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/report.h"
#include "results/results_file.h"
#include "ui/frame/commands.h"
#include "ui/frame/mdi.h"
#include "ui/frame/menu_bar.h"
#include "ui/kit/print_text.h"
#include "ui/kit/start_program.h"
#include "ui/program.h"

namespace idrova {

namespace {

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

}  // namespace

void AttachResultCommands(MDI& mdi) {
    MenuBar& menu = mdi.Menu();
    Program& program = mdi.State();
    menu.Attach("Stampa", [&mdi] { PrintLastResults(mdi); });
    menu.Attach("Risultati",
                [&program] { ShowResults(program.folder, program.boxes, StartWithFile); });
    menu.Attach("Elris", [&program] { DeleteResults(program.folder, program.boxes); });
    menu.Attach("Risultatiseq", [&program] {
        program.project.settings.ResultsInSequence = !program.project.settings.ResultsInSequence;
    });
}

}  // namespace idrova
