// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/run_command.h"

#include <utility>

#include "hydraulics/messages.h"
#include "hydraulics/run_results.h"
#include "results/messages.h"
#include "results/report.h"
#include "results/results_file.h"
#include "table/table_network.h"

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

void AddTableNotes(const Project& project, const TableTexts& texts, Outcome& outcome) {
    if (project.settings.Mode != WorkMode::Table) return;
    for (Note& note : TableNotes(project, texts)) outcome.notes.push_back(std::move(note));
}

bool HasResults(const Outcome& outcome) {
    switch (outcome.end) {
        case RunEnd::Settled:
        case RunEnd::Unsettled:
        case RunEnd::Singular:
            return true;
        case RunEnd::Refused:
        case RunEnd::Empty:
        case RunEnd::Stopped:
        case RunEnd::NotFinite:
            return false;
    }
    return false;
}

/// Deleted pipes and points keep what they held.
void StoreIntoProject(const WorkNetwork& work, Project& project) {
    for (int i = 1; i <= work.WorkPipeCount; ++i) {
        project.Pipes[i].FlowRate = work.WorkPipes[i].FlowRate;
    }
    for (int i = 1; i <= work.WorkPointCount; ++i) {
        project.Points[i].Pressure = work.WorkPoints[i].Pressure;
    }
    for (const WorkComponent& component : work.WorkComponents) {
        project.Cells[component.cell].Result = component.record.Result;
    }
}

Outcome Compute(const Settings& settings, WorkNetwork& work, bool pipeDataChecked,
                const RunHost& host) {
    return ComputeNetwork(
        settings, work,
        {.seed = host.seed, .progress = host.showProgress, .pipeDataChecked = pipeDataChecked});
}

/// Puts what has come of a run into its record: writes the report when there are results, takes the
/// progress away, tells what went wrong.
void Report(const WorkNetwork& work, const RunHost& host, RunRecord& record) {
    const Outcome& outcome = record.outcome;
    Status written = Done{};
    if (HasResults(outcome)) {
        record.results = work;
        record.time = CurrentReportTime();
        written = host.writeReport(record.settings, work);
    }
    host.endProgress();
    if (outcome.refusal) host.boxes.Show(RefusalBox(*outcome.refusal));
    if (outcome.end == RunEnd::NotFinite) host.boxes.Show(kDoesNotSettle);
    if (!written) host.boxes.Show({written.Error(), kResultsTitle});
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
    record.outcome = Compute(project.settings, work, true, host);
    AddTableNotes(project, texts, record.outcome);
    const bool stored = HasResults(record.outcome);
    if (stored && project.settings.Mode == WorkMode::Graphic) StoreIntoProject(work, project);
    Report(work, host, record);
    if (!stored) return record;
    CheckPumps(work, host.boxes);
    CheckPressures(project.settings, work, host.boxes);
    return record;
}

SinglePipeResult RunSinglePipe(const SinglePipe& pipe, const Project& project, WorkNetwork& work,
                               const RunHost& host) {
    SinglePipeResult result{{InputsOf(project), {}, project.settings}, {}};
    RunRecord& record = result.record;
    record.outcome.end = RunEnd::Empty;
    if (!IsComplete(pipe)) return result;

    record.settings.SectionType = Section::Circular;
    BuildSinglePipeNetwork(pipe, work);
    record.outcome = Compute(record.settings, work, false, host);
    Report(work, host, record);
    if (record.results) result.box = ComputedText(pipe, work);
    return result;
}

std::function<Status(const Settings&, const WorkNetwork&)> ReportWriter(
    const Project& project, const std::filesystem::path& folder, std::string& report) {
    return [&project, &folder, &report](const Settings& settings, const WorkNetwork& work) {
        report = ReportText(settings, project.ProjectName, work, CurrentReportTime());
        return StoreReport(settings, report, folder);
    };
}

}  // namespace idrova
