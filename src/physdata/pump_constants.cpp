// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/pump_constants.h"

#include "base/number_text.h"

namespace idrova {
namespace {

/// A project file rounds a single to 7 digits, so a value read back may be its neighbour.
bool SameInFile(float stored, double computed) {
    return GeneralText(stored) == GeneralText(ToSingle(computed));
}

bool IsPumpOf(const CellRec& cell, const PumpRecord& pump, const PumpCurve& curve) {
    return cell.Name == pump.name && SameInFile(cell.Param1, curve.a) &&
           SameInFile(cell.Param2, curve.b);
}

float ConstantFor(const CellRec& cell, const PumpDb& db) {
    for (int slot = 1; slot <= db.count; ++slot) {
        const std::optional<PumpCurve> curve = CurveOf(db[slot]);
        if (curve && IsPumpOf(cell, db[slot], *curve)) return ToSingle(curve->c);
    }
    return 0;
}

}  // namespace

void CompletePumpConstants(Project& project, const PumpDb& db) {
    for (CellRec& cell : project.Cells) {
        const bool lacking = cell.Kind == CellKind::Pump && cell.Placed && cell.PumpConstant == 0;
        if (lacking) cell.PumpConstant = ConstantFor(cell, db);
    }
}

}  // namespace idrova
