// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/export_results.h"

#include "base/file.h"
#include "editor/svg_drawing.h"
#include "results/csv_export.h"
#include "results/epanet_input.h"
#include "results/html_report.h"

namespace idrova {
namespace {

std::string DrawingOf(const Project& project) {
    if (project.settings.Mode != WorkMode::Graphic) return "";
    Editor editor;
    editor.DataShown = true;
    return SvgDrawing(project, editor);
}

Status WriteDrawing(const Project& project, const std::filesystem::path& file) {
    const std::string drawing = DrawingOf(project);
    if (drawing.empty()) return Failure{"A table has no drawing"};
    return WriteWholeFile(file, drawing);
}

Status WriteEpanetInput(const Project& project, const RunRecord& run,
                        const std::filesystem::path& file) {
    const Result<std::string> text =
        EpanetInput(run, project.ProjectName, project.ProjectDescription);
    return text ? WriteWholeFile(file, *text) : Failure{text.Error()};
}

}  // namespace

Status ExportResults(const Options& options, const Project& project, const RunRecord& run) {
    const Unit unit = run.settings.PressureUnit;
    Status written = Done{};
    if (!options.csvFolder.empty()) {
        const std::string name = std::filesystem::path(project.ProjectName).stem().string();
        written = WriteCsvFiles(run, unit, name, options.csvFolder);
    }
    if (written && !options.html.empty()) {
        const std::string page = HtmlReport({project.ProjectName, project.ProjectDescription, unit},
                                            run, DrawingOf(project));
        written = WriteWholeFile(options.html, page);
    }
    if (written && !options.svg.empty()) written = WriteDrawing(project, options.svg);
    if (written && !options.inp.empty()) written = WriteEpanetInput(project, run, options.inp);
    return written;
}

}  // namespace idrova
