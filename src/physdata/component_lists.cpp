// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/component_lists.h"

#include "base/number_text.h"
#include "physdata/messages.h"

namespace idrova {
namespace {

void ChoosePump(ComponentChoice& choice, const PumpRecord& pump) {
    choice.CompName = pump.name;
    choice.ChosenPump = pump;
    if (const std::optional<PumpCurve> curve = CurveOf(pump)) {
        choice.CompValue1 = curve->a;
        choice.CompValue2 = curve->b;
        choice.CompValue3 = curve->c;
    }
}

void ChooseLoss(ComponentChoice& choice, const LossRecord& loss) {
    choice.CompName = loss.name;
    choice.CompValue1 = DecimalDouble(loss.coefficient);
    choice.CompValue2 = DecimalDouble(loss.fixedDrop);
}

}  // namespace

int ComponentLists::CompCount(CellKind kind) const {
    if (kind == CellKind::Pump) return pumps.count;
    return kind == CellKind::Loss ? losses.count : 0;
}

void LoadComponentDatabases(ComponentLists& lists, const std::filesystem::path& folder,
                            MessageBoxes& boxes) {
    LoadRecords(lists.pumps, folder, kPumpsTitle, boxes);
    LoadRecords(lists.losses, folder, kLossesTitle, boxes);
}

std::vector<std::string> ComponentNames(const ComponentLists& lists, CellKind kind) {
    if (kind == CellKind::Pump) return RecordNames(lists.pumps);
    return kind == CellKind::Loss ? RecordNames(lists.losses) : std::vector<std::string>{};
}

void ChooseComponent(ComponentChoice& choice, const ComponentLists& lists, CellKind kind,
                     int position) {
    if (position < 0 || position >= lists.CompCount(kind)) return;
    const int slot = position + 1;
    if (kind == CellKind::Pump) {
        ChoosePump(choice, lists.pumps[slot]);
    } else {
        ChooseLoss(choice, lists.losses[slot]);
    }
}

}  // namespace idrova
