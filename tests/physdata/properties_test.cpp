// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "base/number_text.h"
#include "physdata/component_lists.h"
#include "physdata/fluid_commands.h"
#include "physdata/messages.h"
#include "physdata/pipe_settings.h"
#include "physdata/pump_constants.h"
#include "support/scripted_boxes.h"

namespace idrova {
namespace {

const FluidFields kWater{"Water 20 °C", "998.2", "1.002E-3", "0", "4182", ".598"};

TEST(Fluids, UseTakesTheTypedValues) {
    const auto project = std::make_unique<Project>();
    ScriptedBoxes boxes;
    boxes.Expect(kNoFluidToUse);
    EXPECT_FALSE(UseFluid(*project, 0, {"Sand", "", "", "", "", ""}, boxes));
    EXPECT_EQ(project->settings.FluidName, "");
    UseFluid(*project, 7, {"Water", "1500 kg", "1500", "z", "", ""}, boxes);
    project->numtubo = 1;  // a slot whose pipe was deleted
    TellVolumeFlows(*project, boxes);
    EXPECT_EQ(project->settings.FluidName, "[7] Water");
    EXPECT_EQ(FluidPropertyLabel(project->settings), " 1500 kg/mc ; 1.500E3 Ns/mq");
    project->Pipes[1].X1 = 10;
    boxes.Expect(kRedefineVolumeFlows);
    TellVolumeFlows(*project, boxes);
    UseFluid(*project, 0, kWater, boxes);
    EXPECT_EQ(project->settings.FluidName, "Water 20 °C");
    EXPECT_EQ(project->settings.FluidViscosity, 1.002e-3);
}

TEST(Fluids, ANameAloneMeansItsRecord) {
    const FluidDb db = WithRecord(WithRecord({}, FluidRecord{.name = "Air"}), {.name = "Oil"});
    Settings settings;
    EXPECT_EQ(ShowFluidInUse(settings, db), FluidFields{});
    settings.FluidName = "[2] Oil";
    settings.FluidDensity = 870.25;
    settings.FluidViscosity = .0123456;
    const FluidFields opened = ShowFluidInUse(settings, db);
    EXPECT_EQ(opened, (FluidFields{"Oil", "870.25", ".0123456", "0", "0", "0"}));
    FluidFields renamed = opened;
    renamed.name = "Air";
    EXPECT_EQ(MeantFluid(db, opened, opened), 0);
    EXPECT_EQ(MeantFluid(db, renamed, opened), 1);
    EXPECT_EQ(MeantFluid(db, {"Oil", "", "", "", "", ""}, opened), 2);
    EXPECT_EQ(MeantFluid(db, {"Oi", "", "", "", "", ""}, opened), 0);
    EXPECT_EQ(MeantFluid(db, {"Oil", "900", "", "", "", ""}, opened), 0);
}

TEST(Fluids, ShowWhatWasTypedAndTheKinematicViscosity) {
    EXPECT_EQ(ShowFluid(TypedFluid(kWater)), kWater);
    EXPECT_EQ(ShowFluid(TypedFluid({"x", "1e300", "-", "", "", "a"})),
              (FluidFields{"x", "3.402823E+38", "0.000E+0", "0", "0", "0"}));
    EXPECT_EQ(KinematicViscosityOnChange(kWater), "1.00E-6");
    EXPECT_EQ(KinematicViscosityOnClick(kWater), "1.004E-6");
    EXPECT_EQ(KinematicViscosityOnChange({"x", "?", "1", "", "", ""}), std::nullopt);
}

TEST(LossFields, HoldOneOfTheTwoValues) {
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
}

TEST(ComponentChoice, CopiesTheChosenComponent) {
    ComponentLists lists;
    const PumpRecord pump{.name = "P", .pMax = 300000, .qMin = 1, .pMin = 100000, .qMax = 3};
    lists.pumps = WithRecord(WithRecord(PumpDb{}, pump), {.name = "flat"});
    lists.losses = WithRecord(LossDb{}, {"filter", 0.1F, 20000});

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
    const std::vector<std::array<double, 4>> cases = {
        {300000, 0.5, 100000, 2}, {100000, 1, 300000, 0.25}, {4e5, 10, 4e5, 20}};
    for (const auto& [pMax, qMin, pMin, qMax] : cases) {
        const PumpCurve curve = CurveThrough(pMax, qMin, pMin, qMax).value();
        const double tolerance = 1e-9 * std::abs(curve.c);
        EXPECT_NEAR(curve.Rise(qMin), pMax, tolerance);
        EXPECT_NEAR(curve.Rise(qMax), pMin, tolerance);
        EXPECT_NEAR(curve.Rise(qMin + 0.1), curve.Rise(qMin - 0.1), tolerance);
    }
    EXPECT_EQ(CurveThrough(5, 0.1, 3, 0.1), std::nullopt);
}

TEST(PumpCurve, ATypedPumpHasTheCatalogueCurveAndChart) {
    const PumpRecord pump = TypedPump({"P 30", "30", "0", "10", "3600"});
    EXPECT_EQ(ShowPump(pump), (PumpFields{"P 30", "30.", ".", "10.", "3600."}));
    EXPECT_EQ(GeneralText(pump.pMax) + " " + GeneralText(pump.pMin), "309862.4 103287.5");
    const PumpCurve curve = CurveOf(pump).value();
    EXPECT_EQ(LabelsOf(curve), (CurveLabels{"-206574.92", "0", "309862.38"}));
    EXPECT_EQ(PrevalenceText(curve, "1800"), "25.");
    EXPECT_EQ(PrevalenceText(curve, "7200"), "-50.");
    const PumpChart chart = ChartOf(TypedPump({"", "30", "1800", "10", "5400"})).value();
    EXPECT_EQ(chart.front().label + chart[1].label + chart.back().label, "1800.1980.5220.");
    EXPECT_NEAR(chart.back().prevalence, 30 - 20 * 0.95 * 0.95, 1e-5);
}

/// A single after its way through a project file.
float FromFile(double value) {
    return ToSingle(ReadNumber(GeneralText(ToSingle(value))));
}

TEST(PumpConstants, ComeFromThePumpWithTheSameNameAndCoefficients) {
    const PumpRecord pump{.name = "P", .pMax = 9.8765431e5F, .qMin = 0.7F, .pMin = 1e5F, .qMax = 3};
    const PumpDb db = WithRecord(WithRecord(PumpDb{}, {.name = "P"}), pump);
    const PumpCurve curve = CurveOf(pump).value();
    EXPECT_NE(FromFile(curve.b), ToSingle(curve.b)) << "a value that 7 digits do not hold";
    const auto project = std::make_unique<Project>();
    const std::vector<std::pair<std::function<void(CellRec&)>, float>> cases = {
        {[](CellRec& /*cell*/) {}, ToSingle(curve.c)},
        {[](CellRec& cell) { cell.PumpConstant = 5; }, 5.0F},  // a stored constant stays
        {[](CellRec& cell) { cell.Name = "Q"; }, 0.0F},
        {[](CellRec& cell) { cell.Param1 *= 1.00001F; }, 0.0F},
        {[](CellRec& cell) { cell.Param2 = 0; }, 0.0F},
        {[](CellRec& cell) { cell.Placed = false; }, 0.0F},
        {[](CellRec& cell) { cell.Kind = CellKind::Loss; }, 0.0F}};
    for (const auto& [change, constant] : cases) {
        CellRec& cell = project->Cells[kMaxCells];
        cell = {"P", CellKind::Pump, FromFile(curve.a), FromFile(curve.b)};
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

}  // namespace
}  // namespace idrova
