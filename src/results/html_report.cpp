// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/html_report.h"

#include <variant>

#include "base/markup_text.h"
#include "base/number_text.h"
#include "model/version.h"
#include "results/result_tables.h"

namespace idrova {
namespace {

constexpr std::string_view kStyle = R"(
body { font: 10pt sans-serif; margin: 2em; color: black; background: white; }
h1 { font-size: 15pt; } h2 { font-size: 12pt; margin-top: 1.5em; }
svg { max-width: 100%; height: auto; }
table { border-collapse: collapse; margin-top: 0.5em; }
th, td { border-bottom: 1px solid #ccc; padding: 0.15em 0.7em; text-align: left; }
thead { display: table-header-group; } tr { page-break-inside: avoid; }
td.number { text-align: right; }
)";

std::string Element(const std::string& name, std::string_view text) {
    return "<" + name + ">" + MarkupText(text) + "</" + name + ">\n";
}

std::string SettingRow(std::string_view what, const std::string& value) {
    return "<tr><th>" + MarkupText(what) + "</th><td>" + MarkupText(value) + "</td></tr>\n";
}

std::string_view ModeText(WorkMode mode) {
    switch (mode) {
        case WorkMode::Graphic:
            return "Drawing";
        case WorkMode::Table:
            return "Table";
        case WorkMode::SinglePipe:
            return "Single pipe";
    }
    return "";
}

std::string SettingsTable(const Settings& settings) {
    const bool gas = settings.EquationType == Equation::Compressible;
    const bool rectangular = settings.SectionType == Section::Rectangular;
    std::string table = "<table>\n" + SettingRow("Network", std::string(ModeText(settings.Mode))) +
                        SettingRow("Fluid", settings.FluidName) +
                        SettingRow("Density", PlainText(settings.FluidDensity) + " kg/m³" +
                                                  (gas ? " at 0 °C and 101325 Pa" : "")) +
                        SettingRow("Viscosity", PlainText(settings.FluidViscosity) + " N s/m²");
    if (gas) {
        table +=
            SettingRow("Compressibility factor", PlainText(settings.FluidCompressibility)) +
            SettingRow("Temperature", PlainText(DecimalDouble(settings.FluidTemperature)) + " °C");
    }
    return table +
           SettingRow("Roughness", PlainText(settings.Roughness * kMillimetresPerMetre) + " mm") +
           SettingRow("Section", rectangular ? "Rectangular" : "Circular") +
           SettingRow("Equation", gas ? "Compressible gas" : "Incompressible fluid") +
           SettingRow("Base pressure, not in the tables",
                      PlainText(settings.BasePressure) + " Pa") +
           "</table>\n";
}

std::string HeadingCell(const ResultColumn& column) {
    std::string cell = "<th>" + MarkupText(column.heading);
    if (!column.unit.empty()) cell += "<br/>" + MarkupText(column.unit);
    return cell + "</th>";
}

std::string Cell(const ResultColumn& column, const ResultCell& cell) {
    const bool number = std::holds_alternative<double>(cell);
    return (number ? "<td class=\"number\">" : "<td>") + MarkupText(ShownText(column, cell)) +
           "</td>";
}

std::string TableSection(std::string_view heading, const ResultTable& table) {
    if (table.rows.empty()) return "";
    std::string html = Element("h2", heading) + "<table>\n<thead><tr>";
    for (const ResultColumn& column : table.columns) html += HeadingCell(column);
    html += "</tr></thead>\n<tbody>\n";
    for (const ResultRow& row : table.rows) {
        html += "<tr>";
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            html += Cell(table.columns[i], row.cells[i]);
        }
        html += "</tr>\n";
    }
    return html + "</tbody>\n</table>\n";
}

std::string OutcomeSection(const Outcome& outcome) {
    std::string html = Element("h2", "Computation") + Element("p", OutcomeLine(outcome));
    if (outcome.notes.empty()) return html;
    html += "<ul>\n";
    for (const Note& note : outcome.notes) html += Element("li", note.text);
    return html + "</ul>\n";
}

}  // namespace

std::string HtmlReport(const ReportSubject& subject, const RunRecord& run,
                       std::string_view drawing) {
    std::string html =
        "<!DOCTYPE html>\n<html xmlns=\"http://www.w3.org/1999/xhtml\" lang=\"en\">\n<head>\n"
        "<meta charset=\"UTF-8\"/>\n" +
        Element("title", subject.name) + "<style>" + std::string(kStyle) +
        "</style>\n</head>\n<body>\n" + Element("h1", subject.name);
    if (!subject.description.empty()) html += Element("p", subject.description);
    html += Element("p", "Computed with Idrova " + VersionText() + " on " + run.time.date + " at " +
                             run.time.time);
    html += OutcomeSection(run.outcome);
    html += drawing;
    html += Element("h2", "Settings") + SettingsTable(run.settings);
    html += TableSection("Pipes", PipeTable(run.settings, *run.results));
    html += TableSection("Points", PointTable(run.settings, *run.results, subject.pressureUnit));
    html += TableSection("Components", ComponentTable(*run.results));
    return html + "</body>\n</html>\n";
}

}  // namespace idrova
