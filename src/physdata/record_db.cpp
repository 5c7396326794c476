// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/record_db.h"

#include "physdata/messages.h"

namespace idrova {

void TellFault(RecordFault before, RecordFault now, std::string_view file, int goodRecords,
               std::string_view title, MessageBoxes& boxes) {
    if (before == now) return;
    if (now == RecordFault::Damaged) boxes.Show(DamagedDatabase(file, goodRecords, title));
    if (now == RecordFault::TooMany) boxes.Show(TooManyRecords(file, title));
}

}  // namespace idrova
