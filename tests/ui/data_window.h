// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "main_window.h"
#include "physdata/record_db.h"

namespace idrova {

/// The main window with one of the data windows open in it.
class DataWindow : public MainWindow {
  protected:
    QStringList Names() {
        QStringList names;
        const auto& list = Child<QComboBox>("Combo1");
        for (int i = 0; i < list.count(); ++i) names.push_back(list.itemText(i));
        return names;
    }

    template <typename Record>
    void PutRecords(const std::vector<Record>& records) {
        RecordDb<Record> db;
        for (const Record& record : records) db = WithRecord(db, record);
        PutFile(folder / Record::kFile, EncodeRecords(db));
    }
    /// The file's records, slot 1 first.
    template <typename Record>
    std::vector<Record> StoredRecords() {
        const RecordDb<Record> db = *ReadRecords<Record>(folder.Path());
        return {db.slots.begin() + 1, db.slots.begin() + 1 + db.count};
    }
};

}  // namespace idrova
