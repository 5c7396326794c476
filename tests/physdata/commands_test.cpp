// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "physdata/component_commands.h"
#include "physdata/fluid_commands.h"
#include "physdata/messages.h"
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

class CommandsTest : public testing::Test {
  protected:
    EditOutcome Add(const Window& window, const std::string& name, Answer answer) {
        boxes.Expect(window.askSave, answer);
        return window.add(name);
    }
    EditOutcome Remove(const Window& window, int slot, Answer answer) {
        if (window.askDelete) boxes.Expect(*window.askDelete, answer);
        return window.remove(slot);
    }
    std::string File(const Window& window) const { return FileBytes(folder / window.file); }

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

TEST_F(CommandsTest, SavingAddsAndDeletingRemoves) {
    for (const Window& window : windows) {
        for (const char* name : {"one", "two", "three"}) {
            EXPECT_EQ(Add(window, name, Answer::Yes), EditOutcome::Done);
        }
        const std::string three = File(window);
        EXPECT_EQ(Add(window, "four", Answer::No), EditOutcome::Declined);
        if (window.askDelete) {
            EXPECT_EQ(Remove(window, 2, Answer::Cancel), EditOutcome::Declined);
        }
        EXPECT_EQ(File(window), three);
        EXPECT_EQ(Remove(window, 2, Answer::Ok), EditOutcome::Done);
        EXPECT_EQ(window.names(), (std::vector<std::string>{"one", "three"}));
        EXPECT_EQ(File(window), three.substr(0, 50) + three.substr(100));
        EXPECT_EQ(Remove(window, 2, Answer::Ok), EditOutcome::Done);
        EXPECT_EQ(Remove(window, 1, Answer::Ok), EditOutcome::Done);
        EXPECT_EQ(File(window), "");
    }
}

TEST_F(CommandsTest, SavingAPumpRereadsTheLosses) {
    PutFile(folder / "percon.dat", EncodeRecords(WithRecord(LossDb{}, {"bend", 1, 0})));
    EXPECT_EQ(Add(windows[1], "pump", Answer::Yes), EditOutcome::Done);
    EXPECT_EQ(lists.CompCount(CellKind::Loss), 1);
}

TEST_F(CommandsTest, FiftyRecordsAreTheMost) {
    for (const Window& window : windows) {
        fluids.count = lists.pumps.count = lists.losses.count = 49;
        EXPECT_EQ(Add(window, "last", Answer::Yes), EditOutcome::Done);
        EXPECT_EQ(File(window).size(), 2500U);
        for (const MessageBox& box : window.fullBoxes) boxes.Expect(box, Answer::Yes);
        EXPECT_EQ(window.add("too many"), EditOutcome::Refused);
        EXPECT_EQ(window.names().back(), "last");
    }
}

TEST_F(CommandsTest, NamesMustFitAndSomethingMustBeChosen) {
    for (const Window& window : windows) {
        const std::string longest(window.nameLimit, 'n');
        EXPECT_EQ(Add(window, longest, Answer::Yes), EditOutcome::Done);
        for (const std::string& name : {longest + "n", std::string("10 €"), std::string("a\nb")}) {
            boxes.Expect(BadName(window.nameLimit, window.askSave.title));
            EXPECT_EQ(window.add(name), EditOutcome::Refused);
        }
        for (const int slot : {-1, 0, 2}) {
            boxes.Expect(window.noneChosen);
            EXPECT_EQ(window.remove(slot), EditOutcome::Refused);
        }
        EXPECT_EQ(window.names(), (std::vector<std::string>{longest}));
        EXPECT_EQ(File(window).size(), 50U);
    }
}

TEST_F(CommandsTest, SavingRefusesWhatIsNoPumpAndNoLoss) {
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

}  // namespace
}  // namespace idrova
