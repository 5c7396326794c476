// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "physdata/component_commands.h"
#include "physdata/fluid_commands.h"
#include "physdata/messages.h"
#include "support/record_soundness.h"
#include "support/scripted_boxes.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

/// One database behind its window, so that all three are tested alike.
struct Window {
    const char* file;
    std::size_t nameLimit;
    MessageBox askSave;
    std::vector<MessageBox> fullBoxes;
    MessageBox noneChosen;
    std::optional<MessageBox> askDelete;
    std::function<EditOutcome(const std::string& name)> add;
    std::function<EditOutcome(int slot)> remove;
    std::function<std::vector<std::string>()> names;
};

class Databases : public testing::Test {
  protected:
    EditOutcome Add(const Window& window, const std::string& name, Answer answer) {
        boxes.Expect(window.askSave, answer);
        return window.add(name);
    }
    EditOutcome Remove(const Window& window, int slot, Answer answer) {
        if (window.askDelete) boxes.Expect(*window.askDelete, answer);
        return window.remove(slot);
    }

    /// Saves a loss under the name "new" through its window.
    EditOutcome AddLoss() { return Add(windows[2], "new", Answer::Yes); }

    TempFolder folder;
    fs::path path = folder.Path();
    FluidDb fluids;
    ComponentLists lists;
    ScriptedBoxes boxes;
    // clang-format off
    const std::vector<Window> windows = {
        {"fluidi.dat", 26, kAskSaveFluidAs, {kAskSaveFluidAs, kTooManyFluids}, kNoFluidToDelete,
         kAskDeleteFluid,
         [this](auto& name) {
             return SaveFluidAs(fluids, {name, "1", "1", "0", "1", "1"}, false, path, boxes);
         },
         [this](int slot) { return DeleteFluid(fluids, slot, path, boxes); },
         [this] { return RecordNames(fluids); }},
        {"pompe.dat", 32, kAskSavePump, {kTooManyPumps}, kNoPumpToDelete, std::nullopt,
         [this](auto& name) { return SavePump(lists, {name, "30", "0", "10", "1"}, path, boxes); },
         [this](int slot) { return DeletePump(lists, slot, path, boxes); },
         [this] { return ComponentNames(lists, CellKind::Pump); }},
        {"percon.dat", 40, kAskSaveLoss, {kTooManyLosses}, kNoLossToDelete, kAskDeleteLoss,
         [this](auto& name) { return SaveLoss(lists, {name, "1", ""}, path, boxes); },
         [this](int slot) { return DeleteLoss(lists, slot, path, boxes); },
         [this] { return ComponentNames(lists, CellKind::Loss); }}};
    // clang-format on
};

TEST_F(Databases, RecordsAreAddedAndRemovedWithinTheirLimits) {
    for (const Window& window : windows) {
        const std::string longest(window.nameLimit, 'n');
        for (const std::string& name : {std::string("one"), std::string("two"), longest}) {
            EXPECT_EQ(Add(window, name, Answer::Yes), EditOutcome::Done);
        }
        const std::string three = FileBytes(folder / window.file);
        EXPECT_EQ(Add(window, "four", Answer::No), EditOutcome::Declined);
        for (const std::string& name : {longest + "n", std::string("10 €"), std::string("a\nb")}) {
            boxes.Expect(BadName(window.nameLimit, window.askSave.title));
            EXPECT_EQ(window.add(name), EditOutcome::Refused);
        }
        for (const int slot : {-1, 0, 4}) {
            boxes.Expect(window.noneChosen);
            EXPECT_EQ(window.remove(slot), EditOutcome::Refused);
        }
        if (window.askDelete) {
            EXPECT_EQ(Remove(window, 2, Answer::Cancel), EditOutcome::Declined);
        }
        EXPECT_EQ(FileBytes(folder / window.file), three);
        EXPECT_EQ(Remove(window, 2, Answer::Ok), EditOutcome::Done);
        EXPECT_EQ(window.names(), (std::vector<std::string>{"one", longest}));
        EXPECT_EQ(FileBytes(folder / window.file), three.substr(0, 50) + three.substr(100));
    }
    for (const Window& window : windows) {
        fluids.count = lists.pumps.count = lists.losses.count = 49;
        EXPECT_EQ(Add(window, "last", Answer::Yes), EditOutcome::Done);
        for (const MessageBox& box : window.fullBoxes) boxes.Expect(box, Answer::Yes);
        EXPECT_EQ(window.add("too many"), EditOutcome::Refused);
        EXPECT_EQ(FileBytes(folder / window.file).size(), 2500U);
        EXPECT_EQ(window.names().back(), "last");
    }
}

TEST_F(Databases, SavingRefusesWhatIsNoPumpAndNoLoss) {
    const std::vector<std::pair<PumpFields, MessageBox>> pumps = {
        {{"x", "30", "5", "", "5.0 kg"}, kEqualFlowRates},
        {{"x", "30", "1000000", "", "1000000.001"}, kEqualFlowRates},
        {{"x", "", "1", "a", "2"}, kEqualPressures}};
    for (const auto& [fields, message] : pumps) {
        boxes.Expect(message);
        EXPECT_EQ(SavePump(lists, fields, path, boxes), EditOutcome::Refused);
    }
    boxes.Expect(kZeroCoefficient);
    EXPECT_EQ(SaveLoss(lists, {"x", "0", "abc"}, path, boxes), EditOutcome::Refused);
    EXPECT_TRUE(fs::is_empty(path));
}

const FluidFields kWater{"Water 20 °C", "998.2", "1.002E-3", "0", "4182", ".598"};
const FluidFields kGlycol{"Glycol 30 % and water 26 c", "1038", "2.1E-3", "0", "3660", ".47"};

TEST_F(Databases, TheFirstFluidIsCurrentAtStart) {
    Settings settings;
    settings.FluidDensity = 1;
    settings.FluidName = "old";
    EXPECT_EQ(ReadRecords<FluidRecord>(path)->count, 0);
    EXPECT_TRUE(fs::is_empty(path)) << "reading alone creates nothing";
    LoadCurrentFluid(settings, fluids, path, boxes);
    EXPECT_TRUE(fs::is_empty(path / "fluidi.dat")) << "an absent database is created";
    EXPECT_EQ(FluidPropertyLabel(settings) + settings.FluidName, " 0 kg/mc ; 0.000E0 Ns/mq");

    boxes.Expect(kAskSaveFluidAs, Answer::Yes).Expect(kAskSaveFluidAs, Answer::Yes);
    EXPECT_EQ(SaveFluidAs(fluids, kWater, true, path, boxes), EditOutcome::Done);
    EXPECT_EQ(SaveFluidAs(fluids, kGlycol, false, path, boxes), EditOutcome::Done);
    const std::string bytes = FileBytes(path / "fluidi.dat");
    EXPECT_EQ(bytes.substr(0, 13), std::string("\x0B\x00Water 20 \xB0", 12) + "C");
    EXPECT_EQ(bytes.substr(13, 4), "\xCD\x8C\x79\x44") << "998.2 as a little-endian single";
    EXPECT_EQ(bytes.substr(33, 45),
              std::string(17, '\0') + std::string("\x1A\0", 2) + kGlycol.name);
    EXPECT_EQ(bytes.substr(98), "\xFF\xFF") << "not predefined";
    FluidDb fresh;
    LoadCurrentFluid(settings, fresh, path, boxes);
    EXPECT_EQ(fresh, fluids);
    EXPECT_EQ(FluidPropertyLabel(settings), " 998.2 kg/mc ; 1.002E-3 Ns/mq");
    EXPECT_EQ(settings.FluidName, "Water 20 °C");
}

TEST_F(Databases, SavingAFluidKeepsItsFlagAndTheOthers) {
    for (const bool predefined : {true, false, true}) {
        boxes.Expect(kAskSaveFluidAs, Answer::Yes);
        SaveFluidAs(fluids, kWater, predefined, path, boxes);
    }
    FluidDb expected = fluids;
    boxes.Expect(kNoFluidToSave).Expect(BadName(26, "Edit fluid"));
    EXPECT_EQ(SaveFluid(fluids, 0, kGlycol, path, boxes), EditOutcome::Refused);
    EXPECT_EQ(SaveFluid(fluids, 2, {"€", "", "", "", "", ""}, path, boxes), EditOutcome::Refused);
    boxes.Expect(kAskSaveFluid, Answer::No).Expect(kAskSaveFluid, Answer::Yes);
    EXPECT_EQ(SaveFluid(fluids, 2, kGlycol, path, boxes), EditOutcome::Declined);
    EXPECT_EQ(fluids, expected);
    EXPECT_EQ(SaveFluid(fluids, 2, kGlycol, path, boxes), EditOutcome::Done);
    expected[2] = TypedFluid(kGlycol);
    expected[2].userDefined = -1;
    EXPECT_EQ(*ReadRecords<FluidRecord>(path), expected);
}

LossDb Losses(int count) {
    LossDb db;
    for (int i = 1; i <= count; ++i) {
        db = WithRecord(db, {.name = std::string(static_cast<std::size_t>(i % 9), 'l')});
    }
    return db;
}

TEST_F(Databases, ADamagedFileIsToldOnceAndKeptAtTheFirstChange) {
    const std::string damaged = EncodeRecords(Losses(3)).substr(0, 125);
    const std::string foreign = EncodeRecords(Losses(5));  // as another program may write it
    const fs::path file = path / "percon.dat";
    PutFile(file, damaged);
    boxes.Expect(DamagedDatabase("percon.dat", 2, kLossesTitle));
    LoadComponentDatabases(lists, path, boxes);
    LoadComponentDatabases(lists, path, boxes);

    fs::create_symlink("nowhere/file", path / "percon.dat.bak");
    boxes.Expect(kAskSaveLoss, Answer::Yes)
        .Expect({"Cannot write " + (path / "nowhere/file").string() + ": No such file or directory",
                 "New concentrated drop"});
    EXPECT_EQ(windows[2].add("new"), EditOutcome::Refused);
    EXPECT_EQ(lists.losses.count, 2);
    EXPECT_EQ(FileBytes(file), damaged) << "it cannot be kept";

    fs::remove(path / "percon.dat.bak");
    EXPECT_EQ(AddLoss(), EditOutcome::Done);
    EXPECT_EQ(AddLoss(), EditOutcome::Done);
    EXPECT_EQ(RecordNames(lists.losses), (std::vector<std::string>{"l", "ll", "new", "new"}));
    EXPECT_EQ(lists.losses.fault, RecordFault::None) << "another damage is told again";
    PutFile(file, foreign);
    EXPECT_EQ(AddLoss(), EditOutcome::Done);
    EXPECT_EQ(FileBytes(path / "percon.dat.bak"), damaged);
    EXPECT_EQ(FileBytes(path / "percon.dat.bak1"), foreign);
}

TEST_F(Databases, ALongFileShowsFiftyAndAnUnreadableOneChangesNothing) {
    PutFile(path / "percon.dat", EncodeRecords(Losses(50)) + EncodeRecords(Losses(1)));
    boxes.Expect(TooManyRecords("percon.dat", kLossesTitle));
    LoadComponentDatabases(lists, path, boxes);
    EXPECT_EQ(lists.losses.count, 50);

    lists.losses = Losses(2);
    fs::remove(path / "percon.dat");
    fs::create_directory(path / "percon.dat");
    const std::string reason = (path / "percon.dat").string() + " is not a file";
    boxes.Expect({reason, kLossesTitle});
    LoadComponentDatabases(lists, path, boxes);
    boxes.Expect(kAskSaveLoss, Answer::Yes).Expect({reason, "New concentrated drop"});
    EXPECT_EQ(windows[2].add("new"), EditOutcome::Refused);
    EXPECT_EQ(lists.losses.slots, Losses(2).slots);
    boxes.Expect(kAskSavePump, Answer::Yes);
    EXPECT_EQ(windows[1].add("pump"), EditOutcome::Done) << "rereads the losses, and tells once";
}

template <typename Record>
void CorruptEverywhere() {
    const Record record{.name = std::string(20, 'n')};
    const std::string bytes = EncodeRecords(WithRecord(WithRecord({}, record), record));
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        ASSERT_EQ(BrokenRule<Record>(bytes.substr(0, at)), "") << at;
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
