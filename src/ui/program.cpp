// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/program.h"

#include "editor/component_insertion.h"
#include "results/result_age.h"
#include "shell/run_command.h"

namespace idrova {

const RunRecord* RecordOf(const Program& program) {
    const auto record = program.records.find(program.project.settings.Mode);
    return record == program.records.end() ? nullptr : &record->second;
}

bool ResultsAreOld(const Program& program) {
    const RunRecord* record = RecordOf(program);
    return record != nullptr && !IsUpToDate(record, program.project);
}

bool ShowsOldResults(const Program& program) {
    return HoldsOldResults(RecordOf(program), program.project);
}

StoredSettings PresentSettings(const Program& program) {
    return {program.project.settings, program.shell.roughnessItem, program.limits};
}

std::function<Status(const Settings&, const WorkNetwork&)> StoredReport(Program& program) {
    return [&program](const Settings& settings, const WorkNetwork& work) {
        Status stored =
            ReportWriter(program.project, program.folder, program.report)(settings, work);
        program.reportStored = static_cast<bool>(stored);
        return stored;
    };
}

void RereadComponents(Program& program) {
    LoadComponentDatabases(program.components, program.folder, program.boxes);
    RefreshComponentChoice(program.editor, program.components);
}

}  // namespace idrova
