// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/fluids.h"

#include <gtest/gtest.h>

#include <memory>

#include "physdata/fluid_commands.h"
#include "physdata/messages.h"
#include "support/scripted_boxes.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

const FluidFields kWater{"Water 20 °C", "998.2", "1.002E-3", "0", "4182", ".598"};
const FluidFields kGlycol{"Glycol 30 % and water 26 c", "1038", "2.1E-3", "0", "3660", ".47"};

class FluidsTest : public testing::Test {
  protected:
    void Add(const FluidFields& fields, bool predefined) {
        boxes.Expect(kAskSaveFluidAs, Answer::Yes);
        EXPECT_EQ(SaveFluidAs(db, fields, predefined, folder.Path(), boxes), EditOutcome::Done);
    }
    std::string File() const { return FileBytes(folder / "fluidi.dat"); }

    TempFolder folder;
    FluidDb db;
    ScriptedBoxes boxes;
};

TEST_F(FluidsTest, AnAbsentDatabaseIsCreatedEmpty) {
    EXPECT_EQ(ReadRecords<FluidRecord>(folder.Path())->count, 0);
    EXPECT_TRUE(std::filesystem::is_empty(folder.Path())) << "reading alone creates nothing";
    Settings settings;
    settings.FluidDensity = 1;
    settings.FluidName = "old";
    LoadCurrentFluid(settings, db, folder.Path(), boxes);
    EXPECT_TRUE(std::filesystem::is_empty(folder / "fluidi.dat"));
    EXPECT_EQ(settings.FluidDensity, 0);
    EXPECT_EQ(settings.FluidName, "");
}

TEST_F(FluidsTest, TheFirstFluidIsCurrentAtStart) {
    Add(kWater, true);
    Add(kGlycol, true);
    Settings settings;
    FluidDb fresh;
    LoadCurrentFluid(settings, fresh, folder.Path(), boxes);
    EXPECT_EQ(fresh, db);
    EXPECT_EQ(settings.FluidDensity, 998.2);
    EXPECT_EQ(settings.FluidViscosity, 1.002e-3);
    EXPECT_EQ(settings.FluidCompressibility, 0);
    EXPECT_EQ(settings.FluidName, "Water 20 °C");
    EXPECT_EQ(FluidPropertyLabel(settings), " 998.2 kg/mc ; 1.002E-3 Ns/mq");
}

TEST_F(FluidsTest, UseTakesTheTypedValues) {
    const auto project = std::make_unique<Project>();
    UseFluid(*project, 7, {"Water", "1500 kg", "1500", "z", "", ""}, boxes);
    EXPECT_EQ(project->FluidName, "[7] Water");
    EXPECT_EQ(project->FluidCompressibility, 0);
    EXPECT_EQ(FluidPropertyLabel(*project), " 1500 kg/mc ; 1.500E3 Ns/mq");

    project->numtubo = 1;
    boxes.Expect(kRedefineVolumeFlows);
    UseFluid(*project, 0, kWater, boxes);
    EXPECT_EQ(project->FluidName, "Water 20 °C");
    EXPECT_EQ(project->FluidViscosity, 1.002e-3);
}

TEST_F(FluidsTest, ShowsWhatWasTypedAndTheKinematicViscosity) {
    EXPECT_EQ(ShowFluid(TypedFluid(kWater)), kWater);
    EXPECT_EQ(ShowFluid(TypedFluid({"x", "1e300", "-", "", "", "a"})),
              (FluidFields{"x", "3.402823E+38", "0.000E+0", "0", "0", "0"}));
    EXPECT_EQ(KinematicViscosityOnChange(kWater), "1.00E-6");
    EXPECT_EQ(KinematicViscosityOnClick(kWater), "1.004E-6");
    EXPECT_EQ(KinematicViscosityOnChange({"x", "?", "1", "", "", ""}), std::nullopt);
}

TEST_F(FluidsTest, ARecordHasTheLayoutOfTheFile) {
    Add(kGlycol, false);
    Add(kWater, true);
    const std::string bytes = File();
    ASSERT_EQ(bytes.size(), 100U);
    EXPECT_EQ(bytes.substr(0, 28), std::string("\x1A\x00", 2) + kGlycol.name);
    EXPECT_EQ(bytes.substr(48, 2), "\xFF\xFF");
    EXPECT_EQ(bytes.substr(50, 13), std::string("\x0B\x00Water 20 \xB0", 12) + "C");
    EXPECT_EQ(bytes.substr(63, 4), "\xCD\x8C\x79\x44") << "998.2 as a little-endian single";
    EXPECT_EQ(bytes.substr(83), std::string(17, '\0'));
}

TEST_F(FluidsTest, SaveKeepsTheFlagAndTheOthers) {
    Add(kWater, true);
    Add(kWater, false);
    Add(kWater, true);
    const std::string before = File();
    boxes.Expect(kNoFluidToSave).Expect(BadName(26, "Edit fluid"));
    EXPECT_EQ(SaveFluid(db, 0, kGlycol, folder.Path(), boxes), EditOutcome::Refused);
    EXPECT_EQ(SaveFluid(db, 2, {"€", "", "", "", "", ""}, folder.Path(), boxes),
              EditOutcome::Refused);
    boxes.Expect(kAskSaveFluid, Answer::No);
    EXPECT_EQ(SaveFluid(db, 2, kGlycol, folder.Path(), boxes), EditOutcome::Declined);
    EXPECT_EQ(File(), before);

    boxes.Expect(kAskSaveFluid, Answer::Yes);
    EXPECT_EQ(SaveFluid(db, 2, kGlycol, folder.Path(), boxes), EditOutcome::Done);
    FluidRecord expected = TypedFluid(kGlycol);
    expected.userDefined = -1;
    EXPECT_EQ(db[2], expected);
    EXPECT_EQ(db[3].userDefined, 0);
    EXPECT_EQ(*ReadRecords<FluidRecord>(folder.Path()), db);
}

}  // namespace
}  // namespace idrova
