// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/program.h"

#include "editor/component_insertion.h"

namespace idrova {

bool ResultsAreOld(const Program& program) {
    const auto record = program.records.find(program.project.settings.Mode);
    return record != program.records.end() && record->second.inputs != InputsOf(program.project);
}

void RereadComponents(Program& program) {
    LoadComponentDatabases(program.components, program.folder, program.boxes);
    RefreshComponentChoice(program.editor, program.components);
}

}  // namespace idrova
