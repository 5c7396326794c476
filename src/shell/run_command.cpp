// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/run_command.h"

#include <algorithm>
#include <utility>

#include "hydraulics/messages.h"
#include "hydraulics/problems.h"
#include "hydraulics/run_results.h"
#include "results/messages.h"
#include "results/report.h"
#include "results/results_file.h"
#include "table/table_network.h"
#include "table/table_rows.h"

namespace idrova {
namespace {

/// A refusal that was told in a box, if there is one.
std::optional<TableRefusal> FillNetwork(Project& project, const TableTexts& texts,
                                        WorkNetwork& work, MessageBoxes& boxes) {
    if (project.settings.Mode != WorkMode::Table) {
        CopyNetwork(project, work);
        return std::nullopt;
    }
    auto refusal = TableToNetwork(project, texts, work);
    if (refusal) boxes.Show(refusal->box);
    return refusal;
}

/// Before what is only a remark.
void AddTableNotes(const Project& project, const TableTexts& texts, Outcome& outcome) {
    if (project.settings.Mode != WorkMode::Table) return;
    std::vector<Note> notes = TableNotes(project, texts);
    const auto remarks = std::ranges::find(outcome.notes, NoteWeight::Remark, &Note::weight);
    outcome.notes.insert(remarks, notes.begin(), notes.end());
}

/// Deleted pipes and points keep what they held.
void StoreIntoProject(const WorkNetwork& work, Project& project) {
    for (const auto [i, pipe] : DrawnPipes(work)) project.Pipes[i].FlowRate = pipe.FlowRate;
    for (const auto [i, point] : DrawnPoints(work)) project.Points[i].Pressure = point.Pressure;
    for (const WorkComponent& component : work.WorkComponents) {
        project.Cells[component.cell].Result = component.record.Result;
    }
}

void KeepResults(const WorkNetwork& work, RunRecord& record) {
    record.time = CurrentReportTime();
    if (record.outcome.stored) record.results = work;
}

void CheckPumps(const WorkNetwork& work, MessageBoxes& boxes) {
    const std::vector<int> cells = PumpsOutOfRange(work);
    if (!cells.empty()) boxes.Show(OutOfRangePumps(cells));
}

/// Adds the base pressure; when pressures are negative then, offers one that lifts the lowest to 0.
void CheckPressures(Settings& settings, WorkNetwork& work, MessageBoxes& boxes) {
    const float lowest = AddBasePressure(settings, work);
    if (lowest >= 0) return;
    const MessageBox question = NegativePressures(settings.BasePressure / kPascalPerBar);
    if (boxes.Show(question) == Answer::Yes) settings.BasePressure = -lowest;
}

}  // namespace

RunRecord RunNetwork(Project& project, const TableTexts& texts, WorkNetwork& work,
                     const RunHost& host) {
    RunRecord record{InputsOf(project), {}, project.settings};
    if (auto refusal = FillNetwork(project, texts, work, host.boxes)) {
        record.outcome.notes = std::move(refusal->notes);
        return record;
    }
    record.outcome =
        ComputeNetwork(project.settings, work, {.seed = host.seed, .progress = host.showProgress});
    if (record.outcome.refusal) record.outcome.notes = ProblemsOf(project.settings, work);
    AddTableNotes(project, texts, record.outcome);
    KeepResults(work, record);
    const bool stored = record.results.has_value();
    if (stored && project.settings.Mode == WorkMode::Graphic) StoreIntoProject(work, project);
    TellRun(record, host);
    if (!stored) return record;
    CheckPumps(work, host.boxes);
    CheckPressures(project.settings, work, host.boxes);
    return record;
}

void RestoreResults(const RunRecord& record, Project& project) {
    const bool drawn = project.settings.Mode == WorkMode::Graphic;
    if (drawn && record.results && record.inputs == InputsOf(project)) {
        StoreIntoProject(*record.results, project);
    }
}

bool IsToCompute(const Project& project, const RunRecord* last) {
    const WorkMode mode = project.settings.Mode;
    if (mode == WorkMode::SinglePipe) return false;
    if (last != nullptr) return last->inputs != InputsOf(project);
    return mode == WorkMode::Table ? CountListedRows(project) > 0 : project.numtubo > 0;
}

SinglePipeResult RunSinglePipe(const SinglePipe& pipe, const Project& project, WorkNetwork& work) {
    SinglePipeResult result{{InputsOf(project), {}, project.settings}, {}};
    RunRecord& record = result.record;
    record.outcome.end = RunEnd::Empty;
    if (!IsComplete(pipe)) return result;

    record.settings.SectionType = Section::Circular;
    BuildSinglePipeNetwork(pipe, work);
    record.outcome = ComputeNetwork(record.settings, work, {.pipeDataChecked = false});
    KeepResults(work, record);
    if (record.results) result.box = ComputedText(pipe, work);
    return result;
}

void TellRun(const RunRecord& record, const RunHost& host) {
    Status written = Done{};
    if (record.results) written = host.writeReport(record.settings, *record.results);
    host.endProgress();
    const Outcome& outcome = record.outcome;
    if (outcome.refusal) host.boxes.Show(RefusalBox(*outcome.refusal));
    const bool solved = outcome.end == RunEnd::NotFinite || outcome.end == RunEnd::Singular;
    if (solved && !outcome.stored) host.boxes.Show(kDoesNotSettle);
    if (!written) host.boxes.Show({written.Error(), kResultsTitle});
}

std::function<Status(const Settings&, const WorkNetwork&)> ReportWriter(
    const Project& project, const std::filesystem::path& folder, std::string& report) {
    return [&project, &folder, &report](const Settings& settings, const WorkNetwork& work) {
        report = ReportText(settings, project.ProjectName, work, CurrentReportTime());
        return StoreReport(settings, report, folder);
    };
}

}  // namespace idrova
