// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>

#include "base/number_text.h"
#include "physdata/component_commands.h"
#include "physdata/fittings.h"
#include "physdata/fluid_commands.h"
#include "physdata/messages.h"
#include "physdata/pipe_settings.h"
#include "physdata/pump_constants.h"
#include "support/record_soundness.h"
#include "support/scripted_boxes.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

const FluidFields kWater{"Water 20 °C", "998.2", "1.002E-3", "0", "4182", ".598"};

TEST(Fluids, UseTakesTheTypedValues) {
    const auto project = std::make_unique<Project>();
    Settings& settings = project->settings;
    ScriptedBoxes boxes;
    boxes.Expect(kNoFluidToUse);
    EXPECT_FALSE(UseFluid(*project, 0, {"Sand", "", "", "", "", ".6"}, boxes));
    EXPECT_EQ(settings.FluidName, "");
    UseFluid(*project, 7, {"Water", "1500 kg", "1500", "z", "", ""}, boxes);
    project->numtubo = 1;  // a slot whose pipe was deleted
    TellVolumeFlows(*project, boxes);
    EXPECT_EQ(settings.FluidName + FluidPropertyLabel(settings),
              "[7] Water 1500 kg/mc ; 1.500E3 Ns/mq");
    project->Pipes[1].X1 = 10;
    boxes.Expect(kRedefineVolumeFlows);
    TellVolumeFlows(*project, boxes);
    UseFluid(*project, 0, kWater, boxes);
    EXPECT_EQ(settings.FluidName, "Water 20 °C");
    EXPECT_EQ(settings.FluidViscosity, 1.002e-3);
}

TEST(Fluids, TheWindowShowsTheFluidInUseAndANameAloneMeansItsRecord) {
    const FluidDb db = WithRecord(WithRecord({}, FluidRecord{.name = "Air"}), {.name = "Oil"});
    Settings settings;
    EXPECT_EQ(ShowFluidInUse(settings, db), FluidFields{});
    settings.FluidName = "[2] Oil";
    settings.FluidDensity = 870.25;
    settings.FluidViscosity = .0123456;
    const FluidFields opened{"Oil", "870.25", ".0123456", "0", "0", "0"};
    EXPECT_EQ(ShowFluidInUse(settings, db), opened);
    FluidFields renamed = opened;
    renamed.name = "Air";
    const std::pair<FluidFields, int> meant[] = {{opened, 0},
                                                 {renamed, 1},
                                                 {{"Oil", "", "", "", "", ""}, 2},
                                                 {{"Oi", "", "", "", "", ""}, 0},
                                                 {{"Oil", "900", "", "", "", ""}, 0}};
    for (const auto& [fields, slot] : meant) EXPECT_EQ(MeantFluid(db, fields, opened), slot);

    EXPECT_EQ(ShowFluid(TypedFluid(kWater)), kWater);
    EXPECT_EQ(ShowFluid(TypedFluid({"x", "1e300", "-", "", "", "a"})),
              (FluidFields{"x", "3.402823E+38", "0.000E+0", "0", "0", "0"}));
    EXPECT_EQ(KinematicViscosityOnChange(kWater), "1.00E-6");
    EXPECT_EQ(KinematicViscosityOnClick(kWater), "1.004E-6");
    EXPECT_EQ(KinematicViscosityOnChange({"x", "?", "1", "", "", ""}), std::nullopt);
}

TEST(Components, FieldsAndChoiceTakeWhatTheRecordHas) {
    const std::vector<std::pair<LossRecord, LossFields>> cases = {
        {{"bend", 0.75F, 0}, {"bend", ".75", "", LossOption::Coefficient}},
        {{"filter", 0, 20000}, {"filter", "", "20000", LossOption::FixedDrop}},
        {{"both", 2, 3}, {"both", "", "3", LossOption::FixedDrop}},
        {{"none", 0, 0}, {"none", "", "7", LossOption::FixedDrop}}};
    for (const auto& [loss, shown] : cases) {
        LossFields fields{"?", "", "7", LossOption::FixedDrop};
        ShowLoss(fields, loss);
        EXPECT_EQ(fields, shown) << loss.name;
    }
    EXPECT_EQ(MilliBarLabel({"", "", "20000"}) + MilliBarLabel({"", "", ""}), "197.385.");

    const PumpRecord pump{.name = "P", .pMax = 300000, .qMin = 1, .pMin = 100000, .qMax = 3};
    const ComponentLists lists{WithRecord(WithRecord(PumpDb{}, pump), {.name = "flat"}),
                               WithRecord(LossDb{}, {"filter", 0.1F, 20000})};
    ComponentChoice choice;
    ChooseComponent(choice, lists, CellKind::Loss, 0);
    EXPECT_EQ(choice, (ComponentChoice{"filter", 0.1, 20000, 0, {}}));
    for (const int position : {0, -1, 2, 50}) {
        ChooseComponent(choice, lists, CellKind::Pump, position);
        EXPECT_EQ(choice, (ComponentChoice{"P", -50000, 100000, 250000, pump})) << position;
    }
    ChooseComponent(choice, lists, CellKind::Pump, 1);
    EXPECT_EQ(choice.CompName, "flat");
    EXPECT_EQ(choice.CompValue3, 250000) << "a pump without a curve keeps the values before";
}

TEST(PumpCurve, PassesThroughTheTwoPointsWithItsVertexInTheFirst) {
    for (const auto& [pMax, qMin, pMin, qMax] : std::vector<std::array<double, 4>>{
             {300000, 0.5, 100000, 2}, {100000, 1, 300000, 0.25}, {4e5, 10, 4e5, 20}}) {
        const PumpCurve curve = CurveThrough(pMax, qMin, pMin, qMax).value();
        const double tolerance = 1e-9 * std::abs(curve.c);
        EXPECT_NEAR(curve.Rise(qMin), pMax, tolerance);
        EXPECT_NEAR(curve.Rise(qMax), pMin, tolerance);
        EXPECT_NEAR(curve.Rise(qMin + 0.1), curve.Rise(qMin - 0.1), tolerance);
    }
    EXPECT_EQ(CurveThrough(5, 0.1, 3, 0.1), std::nullopt);

    const PumpRecord pump = TypedPump({"P 30", "30", "0", "10", "3600"});
    EXPECT_EQ(ShowPump(pump), (PumpFields{"P 30", "30.", ".", "10.", "3600."}));
    EXPECT_EQ(GeneralText(pump.pMax) + " " + GeneralText(pump.pMin), "309862.4 103287.5");
    const PumpCurve typed = CurveOf(pump).value();
    EXPECT_EQ(LabelsOf(typed), (CurveLabels{"-206574.92", "0", "309862.38"}));
    EXPECT_EQ(PrevalenceText(typed, "1800") + PrevalenceText(typed, "7200"), "25.-50.");
    const PumpChart chart = ChartOf(TypedPump({"", "30", "1800", "10", "5400"})).value();
    EXPECT_EQ(chart.front().label + chart[1].label + chart.back().label, "1800.1980.5220.");
    EXPECT_NEAR(chart.back().prevalence, 30 - 20 * 0.95 * 0.95, 1e-5);
}

TEST(PumpConstants, ComeFromThePumpWithTheSameNameAndCoefficients) {
    // As a single comes back from a project file.
    const auto fromFile = [](double value) {
        return ToSingle(ReadNumber(GeneralText(ToSingle(value))));
    };
    const PumpRecord pump{.name = "P", .pMax = 9.8765431e5F, .qMin = 0.7F, .pMin = 1e5F, .qMax = 3};
    const PumpDb db = WithRecord(WithRecord(PumpDb{}, {.name = "P"}), pump);
    const PumpCurve curve = CurveOf(pump).value();
    EXPECT_NE(fromFile(curve.b), ToSingle(curve.b)) << "a value that 7 digits do not hold";
    const auto project = std::make_unique<Project>();
    const std::vector<std::pair<std::function<void(CellRec&)>, float>> cases = {
        {[](CellRec& /*cell*/) {}, ToSingle(curve.c)},
        {[](CellRec& cell) { cell.PumpConstant = 5; }, 5.0F},  // a stored constant stays
        {[](CellRec& cell) { cell.Name = "Q"; }, 0.0F},
        {[](CellRec& cell) { cell.Param1 *= 1.00001F; }, 0.0F},
        {[](CellRec& cell) { cell.Param2 = 0; }, 0.0F},
        {[](CellRec& cell) { cell.Placed = false; }, 0.0F},
        {[](CellRec& cell) { cell.Kind = CellKind::Loss; }, 0.0F}};
    CellRec& cell = project->Cells[kMaxCells];
    for (const auto& [change, constant] : cases) {
        cell = {"P", CellKind::Pump, fromFile(curve.a), fromFile(curve.b)};
        cell.Placed = true;
        change(cell);
        CompletePumpConstants(*project, db);
        EXPECT_EQ(cell.PumpConstant, constant);
    }
}

TEST(PipeSettings, SetTheirValueAndLabel) {
    Settings settings;
    std::string labels = RoughnessLabel("t1", settings.Roughness);
    for (const RoughnessPreset& preset : kRoughnessPresets) {
        labels += "|" + RoughnessLabel(preset.item, preset.roughness);
    }
    EXPECT_EQ(labels,
              "zincate steel\t  1.00E-4|zincate steel\t  5.00E-5|stainless stell...  2.00E-5|"
              "rough cast iron...  4.00E-4|partially rusty...  2.00E-3|"
              "strong incrostations  5.00E-3");
    EXPECT_FALSE(ChooseUserRoughness(settings, "-0.001"));
    EXPECT_EQ(RoughnessFieldText(settings), ".0001");
    EXPECT_TRUE(ChooseUserRoughness(settings, "0.00015 m"));
    EXPECT_EQ(RoughnessLabel(kUserRoughnessItem, settings.Roughness), "1.50E-4");
    EXPECT_EQ(settings.Roughness, 0.00015);
    ChoosePressureUnit(settings, Unit::MilliBar);
    EXPECT_EQ(1000 * settings.PressureUnitFactor, 101325.0F);
}

TEST(Fittings, AreTheLossesWithACoefficientCountedAndSummed) {
    LossDb losses;
    for (const LossRecord& loss : {LossRecord{"Elbow 90°", .75F, 0}, LossRecord{"Filter", 0, 5000},
                                   LossRecord{"Gate valve", .17F, 0}}) {
        losses = WithRecord(losses, loss);
    }
    std::vector<FittingCount> fittings = FittingsOf(losses);
    ASSERT_EQ(fittings.size(), 2U);
    fittings[0].count = 2;
    fittings[1].count = 1;
    EXPECT_EQ(ListText(fittings), "2 x Elbow 90°, 1 x Gate valve");
    EXPECT_NEAR(SumOf(fittings), 1.67, 1e-12);
}

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
    const std::pair<PumpFields, MessageBox> pumps[] = {
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

const FluidFields kGlycol{"Glycol 30 % and water 26 c", "1038", "2.1E-3", "0", "3660", ".47"};

TEST_F(Databases, FluidsAreStoredKeepTheirFlagAndTheFirstIsCurrentAtStart) {
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
    EXPECT_EQ(bytes.substr(0, 17), std::string("\x0B\0Water 20 \xB0", 12) + "C\xCD\x8C\x79\x44")
        << "998.2 as a little-endian single";
    EXPECT_EQ(bytes.substr(33, 45),
              std::string(17, '\0') + std::string("\x1A\0", 2) + kGlycol.name);
    EXPECT_EQ(bytes.substr(98), "\xFF\xFF") << "not predefined";
    FluidDb fresh;
    LoadCurrentFluid(settings, fresh, path, boxes);
    EXPECT_EQ(fresh, fluids);
    EXPECT_EQ(FluidPropertyLabel(settings) + settings.FluidName,
              " 998.2 kg/mc ; 1.002E-3 Ns/mqWater 20 °C");

    boxes.Expect(kNoFluidToSave).Expect(BadName(26, "Edit fluid"));
    EXPECT_EQ(SaveFluid(fluids, 0, kGlycol, path, boxes), EditOutcome::Refused);
    EXPECT_EQ(SaveFluid(fluids, 2, {"€", "", "", "", "", ""}, path, boxes), EditOutcome::Refused);
    boxes.Expect(kAskSaveFluid, Answer::No).Expect(kAskSaveFluid, Answer::Yes);
    EXPECT_EQ(SaveFluid(fluids, 2, kWater, path, boxes), EditOutcome::Declined);
    EXPECT_EQ(fluids, fresh);
    EXPECT_EQ(SaveFluid(fluids, 2, kWater, path, boxes), EditOutcome::Done);
    fresh[2] = TypedFluid(kWater);
    fresh[2].userDefined = -1;
    EXPECT_EQ(*ReadRecords<FluidRecord>(path), fresh);
}

LossDb Losses(int count) {
    LossDb db;
    for (int i = 0; i < count; ++i) db = WithRecord(db, {.name = std::string(1, char('a' + i))});
    return db;
}

TEST_F(Databases, AFaultyFileIsToldOnceAndKeptAtTheFirstChange) {
    const fs::path file = path / "percon.dat";
    PutFile(file, EncodeRecords(Losses(50)) + EncodeRecords(Losses(1)));
    boxes.Expect(TooManyRecords("percon.dat", kLossesTitle));
    LoadComponentDatabases(lists, path, boxes);
    EXPECT_EQ(lists.losses.count, 50);

    const std::string damaged = EncodeRecords(Losses(3)).substr(0, 125);
    const std::string foreign = EncodeRecords(Losses(5));  // as another program may write it
    PutFile(file, damaged);
    boxes.Expect(DamagedDatabase("percon.dat", 2, kLossesTitle));
    LoadComponentDatabases(lists, path, boxes);
    LoadComponentDatabases(lists, path, boxes);
    const auto expectRefused = [this](const std::string& reason) {
        boxes.Expect(kAskSaveLoss, Answer::Yes).Expect({reason, "New concentrated drop"});
        EXPECT_EQ(windows[2].add("new"), EditOutcome::Refused);
        EXPECT_EQ(lists.losses.count, 2);
    };
    fs::create_symlink("nowhere/file", path / "percon.dat.bak");
    expectRefused("Cannot write " + (path / "nowhere/file").string() +
                  ": No such file or directory");
    EXPECT_EQ(FileBytes(file), damaged) << "it cannot be kept";

    fs::rename(file, path / "aside");
    fs::create_directory(file);
    boxes.Expect({file.string() + " is not a file", kLossesTitle});
    LoadComponentDatabases(lists, path, boxes);
    expectRefused(file.string() + " is not a file");
    boxes.Expect(kAskSavePump, Answer::Yes);
    EXPECT_EQ(windows[1].add("pump"), EditOutcome::Done) << "rereads the losses, and tells once";
    fs::remove(file);
    fs::rename(path / "aside", file);

    fs::remove(path / "percon.dat.bak");
    EXPECT_EQ(AddLoss(), EditOutcome::Done);
    EXPECT_EQ(AddLoss(), EditOutcome::Done);
    EXPECT_EQ(RecordNames(lists.losses), (std::vector<std::string>{"a", "b", "new", "new"}));
    EXPECT_EQ(lists.losses.fault, RecordFault::None) << "another damage is told again";
    PutFile(file, foreign);
    EXPECT_EQ(AddLoss(), EditOutcome::Done);
    EXPECT_EQ(FileBytes(path / "percon.dat.bak"), damaged);
    EXPECT_EQ(FileBytes(path / "percon.dat.bak1"), foreign);
}

TEST(RecordDb, ACorruptedFileGivesOnlySoundRecords) {
    const auto corruptEverywhere = []<typename Record>(const Record& record) {
        const std::string bytes = EncodeRecords(WithRecord(WithRecord({}, record), record));
        for (std::size_t at = 0; at < bytes.size(); ++at) {
            ASSERT_EQ(BrokenRule<Record>(bytes.substr(0, at)), "") << at;
            for (const int value : {0x00, 0x01, 0x0A, 0x1F, 0x28, 0x7F, 0x80, 0xC3, 0xFF}) {
                std::string corrupted = bytes;
                corrupted[at] = static_cast<char>(value);
                ASSERT_EQ(BrokenRule<Record>(corrupted), "") << at << " = " << value;
            }
        }
    };
    const std::string name(20, 'n');
    corruptEverywhere(FluidRecord{.name = name});
    corruptEverywhere(PumpRecord{.name = name});
    corruptEverywhere(LossRecord{.name = name});
}

}  // namespace
}  // namespace idrova
