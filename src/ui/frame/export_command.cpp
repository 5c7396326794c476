// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/export_command.h"

#include <QFileDialog>
#include <algorithm>
#include <filesystem>
#include <iterator>
#include <optional>
#include <vector>

#include "editor/svg_drawing.h"
#include "results/export_results.h"
#include "results/limit_notes.h"
#include "results/messages.h"
#include "ui/frame/mdi.h"
#include "ui/frame/messages.h"
#include "ui/kit/picture_export.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

namespace {

namespace fs = std::filesystem;

/// The last computation as the windows show it: with the notes on the limits.
std::optional<RunRecord> ShownRun(const Program& program) {
    const RunRecord* record = RecordOf(program);
    if (record == nullptr) return std::nullopt;
    RunRecord shown = *record;
    shown.outcome = HeldAgainst(program.limits, *record);
    return shown;
}

Exported ExportedOf(const Program& program, const std::optional<RunRecord>& run) {
    const Project& project = program.project;
    const bool drawn = project.settings.Mode == WorkMode::Graphic && project.numtubo > 0;
    return {
        .subject = {project.ProjectName, project.ProjectDescription, project.settings.PressureUnit},
        .run = run ? &*run : nullptr,
        .outOfDate = ResultsAreOld(program),
        .drawing = drawn ? SvgDrawing(project, program.editor) : ""};
}

QString FilterOf(const ExportKind& kind) {
    return ToQt(std::string(kind.caption) + " (*" + std::string(kind.suffix) + ")");
}

/// The name wins over the kind that was chosen in the list; a name of no known kind takes its
/// suffix.
fs::path WithSuffix(fs::path file, const QString& chosenFilter) {
    if (ExportFormOf(file)) return file;
    for (const ExportKind& kind : ExportKinds()) {
        if (FilterOf(kind) == chosenFilter) file += kind.suffix;
    }
    return file;
}

/// Empty when the user has thought better of it.
fs::path AskFile(MDI& mdi) {
    const Program& program = mdi.State();
    QStringList filters;
    for (const ExportKind& kind : ExportKinds()) filters += FilterOf(kind);
    QFileDialog dialog(&mdi, "Export results", PathToQt(program.lastFolder));
    dialog.setNameFilters(filters);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);  // asked here, of what will be written
    dialog.selectFile(PathToQt(fs::path(program.project.ProjectName).stem()));
    if (dialog.exec() != QDialog::Accepted) return {};
    return WithSuffix(PathFromQt(dialog.selectedFiles().value(0)), dialog.selectedNameFilter());
}

std::string NamesOf(const std::vector<fs::path>& files) {
    std::string names;
    for (const fs::path& file : files) {
        names += (names.empty() ? "" : ", ") + file.filename().string();
    }
    return names;
}

bool MayOverwrite(const std::vector<fs::path>& files, MessageBoxes& boxes) {
    std::vector<fs::path> old;
    std::ranges::copy_if(files, std::back_inserter(old), [](const fs::path& file) {
        std::error_code ignored;
        return fs::exists(file, ignored);
    });
    return old.empty() || boxes.Show(OverwriteExported(NamesOf(old))) == Answer::Yes;
}

Status Write(ExportForm form, const Exported& exported, const fs::path& file) {
    if (form == ExportForm::Pdf) {
        return WritePdfReport(HtmlReport(exported.subject, *exported.run, ""), exported.drawing,
                              file);
    }
    if (form == ExportForm::Png) return WritePng(exported.drawing, file);
    return WriteExport(form, exported, file);
}

}  // namespace

void ExportFromWindow(MDI& mdi) {
    Program& program = mdi.State();
    const fs::path file = AskFile(mdi);
    const auto form = ExportFormOf(file);
    if (!form) return;
    const std::optional<RunRecord> run = ShownRun(program);
    const Exported exported = ExportedOf(program, run);
    const std::vector<fs::path> files = ExportFiles(*form, file);
    Status done = MayExport(*form, exported);
    if (done && !MayOverwrite(files, program.boxes)) return;
    if (done) done = Write(*form, exported, file);
    if (!done) {
        program.boxes.Show({done.Error(), kExportTitle});
        return;
    }
    mdi.Say("Written: " + NamesOf(files));
}

}  // namespace idrova
