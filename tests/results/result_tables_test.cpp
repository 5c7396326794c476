// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/result_tables.h"

#include <gtest/gtest.h>

#include "results/network_results.h"
#include "support/network_run.h"

namespace idrova {
namespace {

/// The rows as a window shows them.
std::string Shown(const ResultTable& table) {
    std::string text;
    for (const ResultRow& row : table.rows) {
        EXPECT_EQ(row.cells.size(), table.columns.size());
        text += "#" + std::to_string(row.number);
        for (std::size_t i = 0; i < row.cells.size(); ++i) {
            text += " | " + ShownText(table.columns[i], row.cells[i]);
        }
        text += "\n";
    }
    return text;
}

/// 2 kg/s through a pump, a check valve and a pipe that counts its flow from its end point; pipe 3
/// and point 3 are deleted.
struct Plant {
    Plant() {
        settings.FluidDensity = 1000;
        settings.FluidViscosity = 1e-3;
        work.WorkPipeCount = 3;
        work.WorkPipes[1] = {2, 100, .05F, 1, 2, 100, 0, 0, 0, 0, 10, .1F, 1};
        work.WorkPipes[2] = {-2, 50, .05F, 6, 4, 100, 0, 0, 0, 10, 0, .1F, 4};
        work.WorkPipes[3].X1 = kDeleted;
        work.WorkFlowUnknown = {false, true, false};
        work.WorkPointCount = 6;
        work.WorkPoints = {{{},
                            {300000, 1, 0, 3},
                            {100000, 1, 0, 7},
                            {0, kDeleted, 0, 0},
                            {400000, 1, 0, 7},
                            {0, kDeleted},
                            {500000, 1, 0, 9}}};
        work.WorkPressureUnknown = {false, false, true, true, true, true, true};
        work.WorkComponents = {{7,
                                {.Name = "Booster",
                                 .Kind = CellKind::Pump,
                                 .Direction = Delivery::Right,
                                 .Result = 2,
                                 .Placed = true,
                                 .MinFlow = 1,
                                 .MaxFlow = 3}}};
    }

    CellRec& Component() { return work.WorkComponents[0].record; }

    Settings settings;
    WorkNetwork work;
};

TEST(ResultTables, ShowWhatWasFoundInTheDirectionOfTheFlow) {
    const auto plant = std::make_unique<Plant>();
    const auto& [settings, work] = *plant;
    // Column weight of 10 m: 98100 Pa. 2 kg/s in 50 mm: 1.0186 m/s with a pi of 3.1415.
    EXPECT_EQ(Shown(PipeTable(settings, work)),
              "#1 | 1 | 1 | 2 | 7200.0 | 7.200 | computed | 1.019 | 50931 | 200000.0 | 1019.00 |"
              " 50.0 | 100.00\n"
              "#2 | 2 | 4 | 6 | -7200.0 | -7.200 | given | -1.019 | 50931 | -100000.0 | -3962.00 |"
              " 50.0 | 50.00\n");
    EXPECT_EQ(Shown(PointTable(settings, work, Unit::Bar)),
              "#1 | 1 | 300000 | 2.9608 | given | 0 | 30.58\n"
              "#2 | 2 | 100000 | 0.9869 | computed | 10 | 20.19\n"
              "#4 | 4 | 400000 | 3.9477 | computed | 0 | 40.77\n"
              "#6 | 6 | 500000 | 4.9346 | computed | 10 | 60.97\n");
    EXPECT_EQ(Shown(PointTable(settings, work, Unit::MilliBar)).substr(0, 28),
              "#1 | 1 | 300000 | 2960.8 | g");
}

TEST(ResultTables, ComponentsShowRiseOrDropAndRange) {
    const auto plant = std::make_unique<Plant>();
    plant->work.WorkPipes[1].X2 = 7;
    plant->work.WorkPipes[2].X2 = 9000;
    EXPECT_EQ(Shown(ComponentTable(plant->work)),
              "#7 | 7 | Booster | pump | 7200.0 | 300000 |  | 3600.0 | 10800.0 | within\n");
    for (const auto& [flow, range] :
         {std::pair(-2.0F, "outside"), {3.0F, "within"}, {3.1F, "outside"}, {.9F, "outside"}}) {
        plant->work.WorkPipes[1].FlowRate = plant->Component().Result = flow;
        EXPECT_TRUE(Shown(ComponentTable(plant->work)).ends_with(std::string(range) + "\n"));
    }
    plant->Component().Kind = CellKind::Loss;
    plant->work.WorkPipes[1].FlowRate = -2;
    EXPECT_EQ(Shown(ComponentTable(plant->work)),
              "#7 | 7 | Booster | loss | 7200.0 |  | 300000 |  |  | \n");
    plant->Component().Placed = false;
    EXPECT_EQ(Shown(ComponentTable(plant->work)), "");
}

TEST(ResultTables, AGasHasItsRealVelocityADuctItsOwnSectionAndSides) {
    const auto plant = std::make_unique<Plant>();
    NetworkBuilder air;
    MakeAir(*air);
    plant->settings = air->settings;
    // Absolute mean 301325 Pa at 20 degrees: 3.9122 kg/m3 with Z 0.98... of 1.2929.
    const PipeResult gas = ResultOfPipe(plant->settings, plant->work, 1);
    const double density = 1.2929 * 301325 / 101325 * 273.15 / 293.15 / .98;
    EXPECT_NEAR(gas.velocity, 2 / density / (.05 * .05 * 3.1415 / 4), 1e-4);
    EXPECT_NEAR(gas.volumeFlow, 2 / 1.2929, 1e-9);
    EXPECT_FALSE(PointResults(plant->settings, plant->work)[0].head);
    plant->settings.SectionType = Section::Rectangular;
    const PipeResult duct = ResultOfPipe(plant->settings, plant->work, 1);
    EXPECT_NEAR(duct.velocity, 2 / density / (.05 * .1), 1e-4);
    EXPECT_EQ(PipeTable(plant->settings, plant->work).columns.back().key, "side_b_mm");
}

}  // namespace
}  // namespace idrova
