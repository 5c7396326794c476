// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/export_results.h"

#include <string>
#include <utility>

#include "editor/svg_drawing.h"
#include "results/export_results.h"

namespace idrova {
namespace {

std::string DrawingOf(const Project& project) {
    if (project.settings.Mode != WorkMode::Graphic) return "";
    Editor editor;
    editor.DataShown = true;
    return SvgDrawing(project, editor);
}

}  // namespace

Status ExportResults(const Options& options, const Project& project, const RunRecord& run) {
    const Exported exported = {
        .subject = {project.ProjectName, project.ProjectDescription, run.settings.PressureUnit},
        .run = &run,
        .drawing = DrawingOf(project)};
    std::filesystem::path tables = options.csvFolder;
    if (!tables.empty()) tables /= std::filesystem::path(project.ProjectName).stem() += ".csv";
    const std::pair<ExportForm, std::filesystem::path> files[] = {
        {ExportForm::Csv, tables},
        {ExportForm::Html, options.html},
        {ExportForm::Svg, options.svg},
        {ExportForm::Epanet, options.inp}};
    Status written = Done{};
    for (const auto& [form, file] : files) {
        if (written && !file.empty()) written = WriteExport(form, exported, file);
    }
    return written;
}

}  // namespace idrova
