// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/record_db.h"

#include <gtest/gtest.h>

#include "base/number_text.h"
#include "physdata/component_commands.h"
#include "physdata/messages.h"
#include "support/record_soundness.h"
#include "support/scripted_boxes.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

LossDb Losses(int count) {
    LossDb db;
    for (int i = 1; i <= count; ++i) {
        db = WithRecord(db, {.name = "loss " + GeneralText(i), .coefficient = 0.5F});
    }
    return db;
}

const LossFields kTypedLoss{"new", "2", ""};

class DamagedFileTest : public testing::Test {
  protected:
    /// A damaged file of two good records and half a one, loaded with its message.
    void SetUp() override {
        PutFile(folder / "percon.dat", damaged);
        ScriptedBoxes loading;
        loading.Expect(DamagedDatabase("percon.dat", 2, kLossesTitle));
        LoadComponentDatabases(lists, folder.Path(), loading);
        EXPECT_EQ(lists.losses.count, 2);
    }

    const std::string damaged = EncodeRecords(Losses(3)).substr(0, 125);
    TempFolder folder;
    ComponentLists lists;
    ScriptedBoxes boxes;
};

TEST_F(DamagedFileTest, IsToldOnceAndKeptAtTheFirstChange) {
    LoadComponentDatabases(lists, folder.Path(), boxes);
    EXPECT_EQ(FileBytes(folder / "percon.dat"), damaged);

    boxes.Expect(kAskSaveLoss, Answer::Yes).Expect(kAskSaveLoss, Answer::Yes);
    EXPECT_EQ(SaveLoss(lists, kTypedLoss, folder.Path(), boxes), EditOutcome::Done);
    EXPECT_EQ(FileBytes(folder / "percon.dat.bak"), damaged);
    EXPECT_EQ(RecordNames(lists.losses), (std::vector<std::string>{"loss 1", "loss 2", "new"}));
    EXPECT_EQ(lists.losses.fault, RecordFault::None) << "another damage is told again";
    EXPECT_EQ(SaveLoss(lists, kTypedLoss, folder.Path(), boxes), EditOutcome::Done);
    EXPECT_EQ(FileBytes(folder / "percon.dat.bak"), damaged);
    EXPECT_EQ(FileBytes(folder / "percon.dat").size(), 200U);

    const std::string foreign = EncodeRecords(Losses(5));  // as another program may write it
    PutFile(folder / "percon.dat", foreign);
    boxes.Expect(kAskSaveLoss, Answer::Yes);
    EXPECT_EQ(SaveLoss(lists, kTypedLoss, folder.Path(), boxes), EditOutcome::Done);
    EXPECT_EQ(FileBytes(folder / "percon.dat.bak"), damaged);
    EXPECT_EQ(FileBytes(folder / "percon.dat.bak1"), foreign);
}

TEST_F(DamagedFileTest, NothingChangesWhenItCannotBeKept) {
    fs::create_symlink("nowhere/file", folder / "percon.dat.bak");
    const std::string reason =
        "Cannot write " + (folder / "nowhere/file").string() + ": No such file or directory";
    boxes.Expect(kAskSaveLoss, Answer::Yes).Expect({reason, "New concentrated drop"});
    EXPECT_EQ(SaveLoss(lists, kTypedLoss, folder.Path(), boxes), EditOutcome::Refused);
    EXPECT_EQ(lists.losses.count, 2);
    EXPECT_EQ(FileBytes(folder / "percon.dat"), damaged);
}

TEST(RecordDb, AFileWithMoreThanFiftyRecordsShowsFifty) {
    const TempFolder folder;
    PutFile(folder / "percon.dat", EncodeRecords(Losses(50)) + EncodeRecords(Losses(1)));
    ScriptedBoxes boxes;
    ComponentLists lists;
    boxes.Expect(TooManyRecords("percon.dat", kLossesTitle));
    LoadComponentDatabases(lists, folder.Path(), boxes);
    EXPECT_EQ(lists.losses.count, 50);
}

TEST(RecordDb, AnUnreadableFileLeavesTheMemoryAsItWas) {
    const TempFolder folder;
    fs::create_directory(folder / "percon.dat");
    ComponentLists lists;
    lists.losses = Losses(2);
    const LossDb before = lists.losses;
    const std::string reason = (folder / "percon.dat").string() + " is not a file";
    ScriptedBoxes boxes;
    boxes.Expect({reason, kLossesTitle});
    LoadComponentDatabases(lists, folder.Path(), boxes);
    boxes.Expect(kAskSaveLoss, Answer::Yes).Expect({reason, "New concentrated drop"});
    EXPECT_EQ(SaveLoss(lists, kTypedLoss, folder.Path(), boxes), EditOutcome::Refused);
    EXPECT_EQ(lists.losses, before);
}

template <typename Record>
void CorruptEverywhere() {
    RecordDb<Record> db;
    for (int i = 0; i < 3; ++i) db = WithRecord(db, Record{.name = std::string(20, 'n')});
    const std::string bytes = EncodeRecords(db);
    for (std::size_t length = 0; length <= bytes.size(); ++length) {
        ASSERT_EQ(BrokenRule<Record>(bytes.substr(0, length)), "") << length;
    }
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        for (const int value : {0x00, 0x01, 0x0A, 0x1F, 0x28, 0x7F, 0x80, 0xC3, 0xFF}) {
            std::string corrupted = bytes;
            corrupted[at] = static_cast<char>(value);
            ASSERT_EQ(BrokenRule<Record>(corrupted), "") << at << " = " << value;
        }
    }
}

TEST(RecordDb, ACorruptedFileGivesOnlySoundRecords) {
    CorruptEverywhere<FluidRecord>();
    CorruptEverywhere<PumpRecord>();
    CorruptEverywhere<LossRecord>();
}

}  // namespace
}  // namespace idrova
