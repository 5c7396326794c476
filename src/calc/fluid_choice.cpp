// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/fluid_choice.h"

#include "base/number_text.h"
#include "physdata/fluids.h"
#include "physdata/messages.h"

namespace idrova {
namespace {

void UseProperties(Settings& settings, const FluidProperties& properties) {
    settings.FluidDensity = properties.density.value_or(0);
    settings.FluidViscosity = properties.viscosity.value_or(0);
    settings.FluidCompressibility = properties.compressibility;
    settings.FluidName = "given by its properties";
}

/// The slot of a fluid by its number or its name; 0 when there is none.
int SlotOf(const FluidDb& db, const std::string& fluid) {
    if (const auto number = ParseNumber(fluid)) {
        for (int slot = 1; slot <= db.count; ++slot) {
            if (slot == *number) return slot;
        }
    }
    for (int slot = 1; slot <= db.count; ++slot) {
        if (db[slot].name == fluid) return slot;
    }
    return 0;
}

bool UseRecord(Settings& settings, const FluidDb& db, const std::string& fluid,
               MessageBoxes& boxes) {
    const int slot = SlotOf(db, fluid);
    if (slot == 0) {
        boxes.Show({"There is no fluid " + fluid, kFluidsTitle});
        return false;
    }
    SetCurrentFluid(settings, db[slot]);
    settings.FluidName = "[" + GeneralText(slot) + "] " + db[slot].name;
    return true;
}

}  // namespace

bool ChooseFluid(Settings& settings, const Options& options, MessageBoxes& boxes) {
    if (options.properties.density) {
        UseProperties(settings, options.properties);
        return true;
    }
    if (options.fluid.empty() && settings.FluidDensity > 0) return true;
    const Result<FluidDb> db = ReadRecords<FluidRecord>(options.data);
    if (!db) {
        boxes.Show({db.Error(), kFluidsTitle});
        return false;
    }
    TellFault(RecordFault::None, db->fault, FluidRecord::kFile, db->count, kFluidsTitle, boxes);
    if (!options.fluid.empty()) return UseRecord(settings, *db, options.fluid, boxes);
    if (db->Holds(1)) SetCurrentFluid(settings, (*db)[1]);
    return true;
}

}  // namespace idrova
