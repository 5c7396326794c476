// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/message_boxes.h"
#include "base/record_file.h"
#include "base/result.h"

namespace idrova {

/// What the fluids, the pumps and the losses have in common: a file of 50-byte records, held in
/// slots from 1. A `Record` names its file (`kFile`) and its longest name in bytes (`kNameLimit`),
/// has a `name`, and overloads `ReadFields(RecordReader&, Record&)` and
/// `WriteFields(RecordWriter&, const Record&)`.

/// What made the reading stop before the end of the file.
enum class RecordFault { None, Damaged, TooMany };

template <typename Record>
struct RecordDb {
    std::array<Record, kMaxRecords + 1> slots;  ///< 1 .. `count`; slot 0 holds no record
    int count = 0;
    RecordFault fault = RecordFault::None;  ///< of the file as it was last loaded
    std::string told;                       ///< why it could not be loaded then; empty when it was

    bool Holds(int slot) const { return slot >= 1 && slot <= count; }
    bool IsFull() const { return count == static_cast<int>(kMaxRecords); }
    const Record& operator[](int slot) const { return slots.at(static_cast<std::size_t>(slot)); }
    Record& operator[](int slot) { return slots.at(static_cast<std::size_t>(slot)); }
    bool operator==(const RecordDb&) const = default;
};

/// What an editing command came to. Only `Done` changes memory and file, and then both.
enum class EditOutcome {
    Refused,   ///< a message said why
    Declined,  ///< the user answered No or Cancel
    Done,
};

/// Tells why a command is refused.
inline EditOutcome Refuse(const MessageBox& reason, MessageBoxes& boxes) {
    boxes.Show(reason);
    return EditOutcome::Refused;
}

template <typename Record>
bool NameFits(const Record& record) {
    return NameForRecord(record.name, Record::kNameLimit).has_value();
}

/// The names in slot order, as the lists show them.
template <typename Record>
std::vector<std::string> RecordNames(const RecordDb<Record>& db) {
    std::vector<std::string> names;
    for (int slot = 1; slot <= db.count; ++slot) names.push_back(db[slot].name);
    return names;
}

/// The slot of the record chosen at `position` (from 0) of a list of the names that still shows it
/// as `shown`. 0 when nothing is chosen, when another name was typed over it, or when the list is
/// older than `db`.
template <typename Record>
int ChosenSlot(const RecordDb<Record>& db, int position, std::string_view shown) {
    const int slot = position + 1;
    return db.Holds(slot) && db[slot].name == shown ? slot : 0;
}

/// The records before the first fault of a file's content.
template <typename Record>
RecordDb<Record> DecodeRecords(std::string_view bytes) {
    const RecordFile file = SplitRecords(bytes);
    RecordDb<Record> db;
    if (file.partial) db.fault = RecordFault::Damaged;
    if (file.tooMany) db.fault = RecordFault::TooMany;
    for (const RecordBytes& content : file.records) {
        RecordReader reader(content, Record::kNameLimit);
        Record record;
        record.name = reader.Name();
        ReadFields(reader, record);
        if (reader.Broken()) {
            db.fault = RecordFault::Damaged;
            break;
        }
        db[++db.count] = std::move(record);
    }
    return db;
}

/// The file content of slots 1 .. `count`, whose names must fit (`NameForRecord`).
template <typename Record>
std::string EncodeRecords(const RecordDb<Record>& db) {
    std::vector<RecordBytes> records;
    for (int slot = 1; slot <= db.count; ++slot) {
        const Record& record = db[slot];
        RecordWriter writer(NameForRecord(record.name, Record::kNameLimit).value_or(""));
        WriteFields(writer, record);
        records.push_back(writer.Bytes());
    }
    return JoinRecords(records);
}

/// An absent file gives an empty database and is not created.
template <typename Record>
Result<RecordDb<Record>> ReadRecords(const std::filesystem::path& folder) {
    const Result<std::string> bytes = ReadRecordBytes(folder / Record::kFile);
    if (!bytes) return Failure{bytes.Error()};
    return DecodeRecords<Record>(*bytes);
}

/// Tells, under `title`, a fault that `before` did not have yet.
void TellFault(RecordFault before, RecordFault now, std::string_view file, int goodRecords,
               std::string_view title, MessageBoxes& boxes);

/// Reads the database again; an absent file is created empty. A faulty file is told once in the
/// life of `db`, and so is why it cannot be read or created; so keep one for the whole run. False
/// in the second case: `db` stays as it was.
template <typename Record>
bool LoadRecords(RecordDb<Record>& db, const std::filesystem::path& folder, std::string_view title,
                 MessageBoxes& boxes) {
    const Status created = CreateIfAbsent(folder / Record::kFile);
    Result<RecordDb<Record>> fresh =
        created ? ReadRecords<Record>(folder) : Result<RecordDb<Record>>(Failure{created.Error()});
    if (!fresh) {
        if (db.told != fresh.Error()) boxes.Show({fresh.Error(), title});
        db.told = fresh.Error();
        return false;
    }
    TellFault(db.fault, fresh->fault, Record::kFile, fresh->count, title, boxes);
    db = std::move(*fresh);
    return true;
}

/// Puts `next` into the file, then into `db`. A file that does not hold what `db` holds (it was
/// faulty, or another program wrote it) is first kept as "NAME.bak" (see `ReplaceRecordBytes`).
/// `Refused` when the file cannot be written: told under `title`, and nothing is changed.
template <typename Record>
EditOutcome StoreRecords(RecordDb<Record>& db, RecordDb<Record> next,
                         const std::filesystem::path& folder, std::string_view title,
                         MessageBoxes& boxes) {
    const Status stored =
        ReplaceRecordBytes(folder / Record::kFile, EncodeRecords(db), EncodeRecords(next));
    if (!stored) return Refuse({stored.Error(), title}, boxes);
    next.fault = RecordFault::None;
    db = std::move(next);
    return EditOutcome::Done;
}

/// `db` with one record more. `db` must not be full.
template <typename Record>
RecordDb<Record> WithRecord(RecordDb<Record> db, Record record) {
    db[++db.count] = std::move(record);
    return db;
}

/// `db` without the record in `slot`; those above move down by one.
template <typename Record>
RecordDb<Record> WithoutRecord(RecordDb<Record> db, int slot) {
    for (int above = slot; above < db.count; ++above) db[above] = std::move(db[above + 1]);
    db[db.count--] = Record{};
    return db;
}

}  // namespace idrova
