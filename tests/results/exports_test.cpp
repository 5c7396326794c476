// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <regex>

#include "results/csv_export.h"
#include "results/epanet_input.h"
#include "results/html_report.h"
#include "results/network_results.h"
#include "results/result_tables.h"
#include "support/markup_check.h"
#include "support/network_run.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

using testing::HasSubstr;

constexpr const char* kName = "Pump \"A\", <3> & Größe; 2";
constexpr float kMetre = 9810;  ///< Pa

/// From 10 m of head (point 1) through a pump, a valve and a fixed drop to a given pressure (point
/// 9); from point 6 a branch of 2 kg/s, and one that is closed.
RunRecord Plant() {
    NetworkBuilder network;
    for (const auto& [head, column] : {std::pair(10.0F, 2),
                                       {9.0F, 5},
                                       {29.0F, 5},
                                       {28.0F, 9},
                                       {25.0F, 9},
                                       {25.0F, 12},
                                       {0.0F, 15},
                                       {0.0F, 17},
                                       {4.0F, 25},
                                       {5.0F, 21},
                                       {15.0F, 21}}) {
        network->Points[network.AddPoint(column, 20)].Pressure = head * kMetre;
    }
    network->PressureUnknown[1] = network->PressureUnknown[9] = false;
    for (const auto& [from, to, flow, diameter] : {std::tuple(1, 2, 5.0F, .1F),
                                                   {3, 4, 5.0F, .1F},
                                                   {5, 6, 5.0F, .08F},
                                                   {7, 6, -2.0F, .05F},
                                                   {6, 8, 0.0F, .05F},
                                                   {6, 11, 3.0F, .05F},
                                                   {10, 9, 3.0F, .05F}}) {
        network->Pipes[network.AddPipe(from, to, 50, diameter)].FlowRate = flow;
    }
    network->Pipes[4].Z1 = 3;
    network->Pipes[7].Z2 = -2;
    CellRec& pump = network.AddComponent(2, CellKind::Pump);
    pump.Name = kName;
    pump.Param1 = -kMetre / 5;
    pump.Param2 = 25 * kMetre;
    pump.Result = 5;
    pump.MaxFlow = 10;
    CellRec& valve = network.AddComponent(4, CellKind::Loss);
    valve.Name = "valve";
    valve.Param1 = 2.5F;
    CellRec& filter = network.AddComponent(10, CellKind::Loss);
    filter.Name = "filter";
    filter.Param2 = 10 * kMetre;
    network->settings.FluidViscosity = 2e-3;
    network->settings.FluidName = "Wasser <60 °C>";
    RunRecord run{{}, {}, network->settings, {}, {"2026-11-22", "21:55:26"}};
    run.outcome.end = RunEnd::Settled;
    CopyNetwork(*network, run.results.emplace());
    return run;
}

TEST(Exports, CsvFilesHoldTheTablesWhole) {
    RunRecord run = Plant();
    WorkNetwork& work = *run.results;
    work.WorkPipes[4].FlowFromPoint = 6;  // its end
    work.WorkFlowUnknown[4] = false;
    work.WorkPipes[5].X1 = work.WorkPoints[8].X = kDeleted;
    work.WorkPipes[6].FlowRate = work.WorkPipes[7].FlowRate = -3;
    work.WorkComponents[1].record.Name = "a\nb";
    const TempFolder folder;
    ASSERT_TRUE(WriteCsvFiles(run, Unit::Bar, "a, b", folder / "new/deep"));
    const auto file = [&folder](const std::string& kind) {
        return FileBytes(folder / ("new/deep/a, b-" + kind + ".csv"));
    };
    EXPECT_EQ(
        file("pipes"),
        R"(pipe,from,to,flow_kg_h,flow_m3_h,flow_is,velocity_m_s,reynolds,drop_Pa,friction_Pa_m,diameter_mm,length_m,loss_sum
1,1,2,18000,18,computed,0.6366385,31831.93,9810,196.2,100,50,0
2,3,4,18000,18,computed,0.6366385,31831.93,9810,196.2,100,50,0
3,5,6,18000,18,computed,0.9947478,39789.91,0,0,80,50,0
4,6,7,-7200,-7.2,given,-1.018622,25465.54,245250,4316.4,50,50,0
6,6,11,-10800,-10.8,computed,-1.527932,38198.31,98100,1962,50,50,0
7,10,9,-10800,-10.8,computed,-1.527932,38198.31,9810,588.6,50,50,0
)");
    EXPECT_EQ(file("points"), R"(point,pressure_Pa,pressure_bar,pressure_is,height_m,head_m
1,98100,0.9681717,given,0,10
2,88290,0.8713546,computed,0,9
3,284490,2.807698,computed,0,29
4,274680,2.710881,computed,0,28
5,245250,2.420429,computed,0,25
6,245250,2.420429,computed,0,25
7,0,0,computed,3,3
9,39240,0.3872687,given,-2,2
10,49050,0.4840859,computed,0,5
11,147150,1.452258,computed,0,15
)");
    EXPECT_EQ(file("components"),
              R"(cell,name,kind,flow_kg_h,rise_Pa,drop_Pa,lowest_flow_kg_h,highest_flow_kg_h,range
955,"Pump ""A"", <3> & Größe; 2",pump,18000,196200,,0,36000,within
959,"a
b",loss,18000,,29430,,,
971,filter,loss,10800,,98100,,,
)");

    PutFile(folder / "file", "old");
    EXPECT_THAT(WriteCsvFiles(run, Unit::Bar, "a", folder / "file").Error(),
                HasSubstr("a-pipes.csv"));
    EXPECT_EQ(FileBytes(folder / "file"), "old");
}

TEST(Exports, AGasHasItsRealVelocityADuctItsOwnSectionAndSides) {
    RunRecord run = Plant();
    NetworkBuilder air;
    MakeAir(*air);
    Settings& settings = air->settings;
    const double pascal = 101325 + 9.5 * kMetre;  // absolute mean
    const double density = 1.2929 * pascal / 101325 * 273.15 / 293.15 / .98;
    const PipeResult gas = ResultOfPipe(settings, *run.results, 1);
    EXPECT_NEAR(gas.velocity, 5 / density / (.1 * .1 * 3.1415 / 4), 1e-4);
    EXPECT_NEAR(gas.volumeFlow, 5 / 1.2929, 1e-9);
    EXPECT_FALSE(PointResults(settings, *run.results)[0].head);
    settings.SectionType = Section::Rectangular;
    run.results->WorkPipes[1].OuterSize = .2F;
    EXPECT_NEAR(ResultOfPipe(settings, *run.results, 1).velocity, 5 / density / (.1 * .2), 1e-4);
    EXPECT_EQ(PipeTable(settings, *run.results).columns.back().key, "side_b_mm");
}

TEST(Exports, APumpIsInItsRangeOrOutside) {
    RunRecord run = Plant();
    CellRec& pump = run.results->WorkComponents[0].record;
    pump.MaxFlow = 3;
    for (const auto& [flow, least, range] : {std::tuple(-2.0F, 1.0F, "outside"),
                                             {3.0F, 1.0F, "within"},
                                             {3.1F, 1.0F, "outside"},
                                             {.9F, 1.0F, "outside"},
                                             {0.0F, 0.0F, "within"}}) {
        pump.MinFlow = least;
        run.results->WorkPipes[1].FlowRate = pump.Result = flow;
        EXPECT_EQ(ComponentTable(*run.results).rows[0].cells.back(), ResultCell(range)) << flow;
    }
    pump.Placed = false;
    EXPECT_EQ(ComponentTable(*run.results).rows.size(), 2U);
}

TEST(Exports, HtmlIsWellFormedAndTellsAll) {
    RunRecord run = Plant();
    run.outcome.notes = {{"Pipe 4 is < 3 & odd"}};
    const std::string page = HtmlReport({kName, "a\x01\"b\"", Unit::MilliBar}, run, "<svg></svg>");
    EXPECT_EQ(MarkupFault(page), "");
    for (const char* part :
         {"<h1>Pump &quot;A&quot;, &lt;3&gt; &amp; Größe; 2</h1>", "<p>a &quot;b&quot;</p>",
          "<li>Pipe 4 is &lt; 3 &amp; odd</li>", "<svg></svg>", "<td>Wasser &lt;60 °C&gt;</td>",
          "2026-11-22 at 21:55:26", "<br/>mbar</th>", "<td>Incompressible fluid</td>",
          "<h2>Components</h2>", "<p>Computed, 1 note</p>"}) {
        EXPECT_THAT(page, HasSubstr(part));
    }
    const std::string cells = std::regex_replace(page, std::regex("<[^<]*>"), "|");
    EXPECT_THAT(cells, HasSubstr("|4||7||6||-7200.0||-7.200||computed||-1.019||25466||-245250.0||"
                                 "-4316.40||50.0||50.00|"));
    EXPECT_THAT(cells, HasSubstr("|1||98100||968.2||given||0||10.00|"));
    EXPECT_THAT(cells, HasSubstr("|pump||18000.0||196200||||0.0||36000.0||within|"));
    EXPECT_EQ(page.find("Temperature"), std::string::npos);
    run.settings.EquationType = Equation::Compressible;
    run.results->WorkComponents.clear();
    const std::string gas = HtmlReport({}, run, "");
    EXPECT_THAT(gas, HasSubstr("Temperature"));
    EXPECT_EQ(gas.find("Components"), std::string::npos);
    EXPECT_EQ(MarkupFault(gas), "");
}

TEST(Exports, EpanetInputIsTheNetwork) {
    RunRecord run = Plant();
    EXPECT_EQ(*EpanetInput(run, "a\n[PIPES]", "Größe"), R"([TITLE]
 Project: a [PIPES]
 Description: Größe
 Computation: Computed
 Written by Idrova 2.6.3

[JUNCTIONS]
;node elevation_m demand_m3/h
 P2 0 0
 P3 0 0
 P4 0 0
 P6 0 0
 P7 3 7.2
 P8 0 0
 P10 0 0
 P11 0 0

[RESERVOIRS]
;node head_m
 P1 10
 P9 2

[PIPES]
;link from to length_m diameter_mm roughness_mm minor_loss status
 pipe1 P1 P2 50 100 0.1 0 Open
 pipe2 P3 P4 50 100 0.1 2.5 Open
 pipe3 P4 P6 50 80 0.1 0 Open
 pipe4 P7 P6 50 50 0.1 0 Open
 pipe5 P6 P8 50 50 0.1 0 Open
 pipe6 P6 P11 50 50 0.1 0 Open
 pipe7 P10 P9 50 50 0.1 0 Open

[PUMPS]
;link suction delivery curve
 pump955 P2 P3 HEAD curve955 ; Pump "A", <3> & Größe; 2

[VALVES]
;link from to diameter_mm type drop_m minor_loss
 drop971 P11 P10 50 PBV 10 0 ; filter

[CURVES]
;curve flow_m3/h head_m
;PUMP: Pump "A", <3> & Größe; 2
 curve955 0 25
 curve955 18 20
 curve955 36 5

[OPTIONS]
; Wasser <60 °C>, density 1000 kg/m3, dynamic viscosity 0.002 N s/m2
 Units CMH
 Headloss D-W
 Specific Gravity 1
 Viscosity 2
 Trials 200
 Accuracy 0.00001
 Unbalanced Continue 10

[TIMES]
 Duration 0

[REPORT]
 Nodes All
 Links All

[COORDINATES]
;node x y
 P1 3.298561 -21.29856
 P2 5.998561 -21.29856
 P3 6.598561 -21.29856
 P4 10.29856 -21.29856
 P6 13.29856 -21.29856
 P7 16.29856 -21.29856
 P8 18.29856 -21.29856
 P9 26.29856 -21.29856
 P10 22.59856 -21.29856
 P11 21.99856 -21.29856

[END]
)");
}

TEST(Exports, EpanetInputOfWhatIsUnusual) {
    RunRecord run = Plant();
    const auto section = [&run](const std::string& name) {
        const std::string text = *EpanetInput(run, "", "");
        const std::size_t from = text.find('\n', text.find("[" + name + "]\n;") + name.size() + 3);
        return text.substr(from, text.find("\n\n", from) - from);
    };
    WorkNetwork& work = *run.results;
    CellRec& pump = work.WorkComponents[0].record;
    const std::vector<std::tuple<float, float, const char*>> curves = {
        {10, 10,
         "\n curve955 0 25\n curve955 36 5\n curve955 45 -6.25"},  // at the end of its range
        {-1, 10, "\n curve955 0 25\n curve955 25.2 15.2\n curve955 36 5"},  // backwards
        {5, 0, "\n curve955 0 25\n curve955 18 20\n curve955 22.5 17.1875"},
    };
    for (const auto& [flow, range, curve] : curves) {
        work.WorkPipes[1].FlowRate = flow;
        pump.MaxFlow = range;
        EXPECT_THAT(section("CURVES"), testing::EndsWith(curve));
    }
    pump.MaxFlow = 10;
    pump.Param1 = 0;
    EXPECT_THAT(section("CURVES"), HasSubstr("0 25\n curve955 25.2 24.975\n curve955 36 24.95"));
    pump.Placed = false;
    EXPECT_THAT(section("PIPES"), HasSubstr("pipe2 P2 P4"));
    EXPECT_EQ(section("PUMPS"), "");
    work.WorkPipes[7].FlowRate = -3;
    EXPECT_THAT(section("VALVES"), HasSubstr("drop971 P10 P11"));
    work.WorkPressureUnknown[4] = false;
    EXPECT_THAT(section("PIPES"), HasSubstr("pipe3 P4 P6 50 80 0.1 1.024 ")) << "on the other side";
    EXPECT_THAT(section("RESERVOIRS"), HasSubstr("P4 28"));
    run.settings.Roughness = 0;
    run.settings.SectionType = Section::Rectangular;
    for (int i = 1; i <= 7; ++i) work.WorkPipes[i].OuterSize = .2F;
    work.WorkPipes[1].LossSum = 1.5F;
    EXPECT_THAT(section("PIPES"), HasSubstr("pipe1 P1 P2 50 152.3375 1e-06 1.5"));

    run.settings.EquationType = Equation::Compressible;
    EXPECT_EQ(EpanetInput(run, "", "").Error(), "EPANET computes liquids only");
    run.results.reset();
    EXPECT_EQ(EpanetInput(run, "", "").Error(), "There are no results to export");
}

}  // namespace
}  // namespace idrova
