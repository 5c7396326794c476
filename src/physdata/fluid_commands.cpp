// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/fluid_commands.h"

#include <algorithm>
#include <span>
#include <utility>

#include "base/number_text.h"
#include "physdata/messages.h"

namespace idrova {

namespace {

/// The slot of the record of this name; 0 when there is none.
int SlotNamed(const FluidDb& db, std::string_view name) {
    for (int slot = 1; slot <= db.count; ++slot) {
        if (db[slot].name == name) return slot;
    }
    return 0;
}

/// The values without the name.
FluidFields ValuesOf(FluidFields fields) {
    fields.name.clear();
    return fields;
}

}  // namespace

FluidFields ShowFluidInUse(const Settings& settings, const FluidDb& db) {
    FluidFields fields;
    if (settings.FluidDensity == 0) return fields;
    fields.name = PlainFluidName(settings.FluidName);
    if (const int slot = SlotNamed(db, fields.name); slot != 0) fields = ShowFluid(db[slot]);
    fields.density = GeneralText(settings.FluidDensity);
    fields.viscosity = GeneralText(settings.FluidViscosity);
    fields.compressibility = GeneralText(settings.FluidCompressibility);
    return fields;
}

int MeantFluid(const FluidDb& db, const FluidFields& fields, const FluidFields& opened) {
    const FluidFields values = ValuesOf(fields);
    const bool untouched = values == ValuesOf(opened) && fields.name != opened.name;
    return values == FluidFields{} || untouched ? SlotNamed(db, fields.name) : 0;
}

bool UseFluid(Project& project, int selected, const FluidFields& fields, MessageBoxes& boxes) {
    if (fields.density.empty() && fields.viscosity.empty()) {
        boxes.Show(kNoFluidToUse);
        return false;
    }
    project.settings.FluidDensity = ReadNumber(fields.density);
    project.settings.FluidViscosity = ReadNumber(fields.viscosity);
    project.settings.FluidCompressibility = ReadNumber(fields.compressibility);
    const std::string number = selected > 0 ? "[" + GeneralText(selected) + "] " : "";
    project.settings.FluidName = number + fields.name;
    return true;
}

void TellVolumeFlows(const Project& project, MessageBoxes& boxes) {
    const auto pipes = std::span(project.Pipes).subspan(1, project.numtubo);
    if (std::ranges::any_of(pipes, &PipeRec::IsDrawn)) boxes.Show(kRedefineVolumeFlows);
}

EditOutcome SaveFluid(FluidDb& db, int selected, const FluidFields& fields,
                      const std::filesystem::path& folder, MessageBoxes& boxes) {
    if (!db.Holds(selected)) return Refuse(kNoFluidToSave, boxes);
    FluidRecord fluid = TypedFluid(fields);
    fluid.userDefined = db[selected].userDefined;
    if (!NameFits(fluid))
        return Refuse(BadName(FluidRecord::kNameLimit, kAskSaveFluid.title), boxes);
    if (boxes.Show(kAskSaveFluid) != Answer::Yes) return EditOutcome::Declined;
    FluidDb next = db;
    next[selected] = std::move(fluid);
    return StoreRecords(db, std::move(next), folder, kAskSaveFluid.title, boxes);
}

EditOutcome SaveFluidAs(FluidDb& db, const FluidFields& fields, bool predefined,
                        const std::filesystem::path& folder, MessageBoxes& boxes) {
    FluidRecord fluid = TypedFluid(fields);
    fluid.userDefined = predefined ? 0 : -1;
    if (!NameFits(fluid))
        return Refuse(BadName(FluidRecord::kNameLimit, kAskSaveFluidAs.title), boxes);
    if (boxes.Show(kAskSaveFluidAs) != Answer::Yes) return EditOutcome::Declined;
    if (db.IsFull()) return Refuse(kTooManyFluids, boxes);
    return StoreRecords(db, WithRecord(db, std::move(fluid)), folder, kAskSaveFluidAs.title, boxes);
}

EditOutcome DeleteFluid(FluidDb& db, int slot, const std::filesystem::path& folder,
                        MessageBoxes& boxes) {
    if (!db.Holds(slot)) return Refuse(kNoFluidToDelete, boxes);
    if (boxes.Show(kAskDeleteFluid) != Answer::Ok) return EditOutcome::Declined;
    const EditOutcome stored =
        StoreRecords(db, WithoutRecord(db, slot), folder, kAskDeleteFluid.title, boxes);
    if (stored == EditOutcome::Done) LoadFluids(db, folder, boxes);
    return stored;
}

}  // namespace idrova
