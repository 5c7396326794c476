// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/component_commands.h"

#include <utility>

#include "physdata/messages.h"

namespace idrova {
namespace {

EditOutcome LoadedAgain(EditOutcome stored, ComponentLists& lists,
                        const std::filesystem::path& folder, MessageBoxes& boxes) {
    if (stored == EditOutcome::Done) LoadComponentDatabases(lists, folder, boxes);
    return stored;
}

}  // namespace

EditOutcome SavePump(ComponentLists& lists, const PumpFields& fields,
                     const std::filesystem::path& folder, MessageBoxes& boxes) {
    PumpRecord pump = TypedPump(fields);
    if (pump.qMax == pump.qMin) return Refuse(kEqualFlowRates, boxes);
    if (pump.pMin == pump.pMax) return Refuse(kEqualPressures, boxes);
    if (lists.pumps.IsFull()) return Refuse(kTooManyPumps, boxes);
    if (!NameFits(pump)) return Refuse(BadName(PumpRecord::kNameLimit, kAskSavePump.title), boxes);
    if (boxes.Show(kAskSavePump) != Answer::Yes) return EditOutcome::Declined;
    const EditOutcome stored = StoreRecords(lists.pumps, WithRecord(lists.pumps, std::move(pump)),
                                            folder, kAskSavePump.title, boxes);
    return LoadedAgain(stored, lists, folder, boxes);
}

EditOutcome DeletePump(ComponentLists& lists, int slot, const std::filesystem::path& folder,
                       MessageBoxes& boxes) {
    if (!lists.pumps.Holds(slot)) return Refuse(kNoPumpToDelete, boxes);
    const EditOutcome stored = StoreRecords(lists.pumps, WithoutRecord(lists.pumps, slot), folder,
                                            kNoPumpToDelete.title, boxes);
    return LoadedAgain(stored, lists, folder, boxes);
}

EditOutcome SaveLoss(ComponentLists& lists, const LossFields& fields,
                     const std::filesystem::path& folder, MessageBoxes& boxes) {
    LossRecord loss = TypedLoss(fields);
    if (loss.coefficient == 0 && loss.fixedDrop == 0) return Refuse(kZeroCoefficient, boxes);
    if (lists.losses.IsFull()) return Refuse(kTooManyLosses, boxes);
    if (!NameFits(loss)) return Refuse(BadName(LossRecord::kNameLimit, kAskSaveLoss.title), boxes);
    if (boxes.Show(kAskSaveLoss) != Answer::Yes) return EditOutcome::Declined;
    return StoreRecords(lists.losses, WithRecord(lists.losses, std::move(loss)), folder,
                        kAskSaveLoss.title, boxes);
}

EditOutcome DeleteLoss(ComponentLists& lists, int slot, const std::filesystem::path& folder,
                       MessageBoxes& boxes) {
    if (!lists.losses.Holds(slot)) return Refuse(kNoLossToDelete, boxes);
    if (boxes.Show(kAskDeleteLoss) != Answer::Ok) return EditOutcome::Declined;
    const EditOutcome stored = StoreRecords(lists.losses, WithoutRecord(lists.losses, slot), folder,
                                            kAskDeleteLoss.title, boxes);
    return LoadedAgain(stored, lists, folder, boxes);
}

}  // namespace idrova
