// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <regex>
#include <vector>

namespace idrova {
namespace {

using testing::HasSubstr;

std::string Lines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    return text;
}

class Report : public testing::Test {
  protected:
    Report() {
        project->ProjectName = "/plants/Caffè.iv";
        project->FluidName = "[3] Water 20 C";
        project->FluidDensity = 998.2;
        project->FluidViscosity = .001002;
        Put(7, "Gate valve", CellKind::Loss, .2F);
        Put(8, "Removed", CellKind::Loss).Placed = false;
        Put(9, "Removed", CellKind::Pump).Placed = false;
        Put(11, "Filter", CellKind::Loss, 1.5F).Param2 = 5000;
        CellRec& pump = Put(2500, "Pump 30-160", CellKind::Pump);
        pump.Result = .5F;
        pump.MinFlow = .25F;
        pump.MaxFlow = 2;
        Put(2501, "Beyond the grid", CellKind::Pump);

        constexpr std::int16_t gone = kDeleted;  // pipe 2 and point 3
        work->WorkPipeCount = 3;
        work->WorkPipes[1] = {.5F, 12.5F, .0279F, 1, 2, 639, 0, 0, 0, 0, 3, 0, 1};
        work->WorkPipes[2] = {1, 1, 1, gone, gone, gone, gone, gone, gone, 0, 0, 0, gone};
        work->WorkPipes[3] = {-.25F, 8, .028F, 4, 2, 639, 0, 0, 0, -2, 3, .0654F, 2};
        work->WorkPointCount = 4;
        work->WorkPoints = {{{}, {202650, 639}, {151987.5F, 639}, {1, gone}, {-1234.5F, 639}}};
        work->WorkPressureUnknown = {false, false, true, true, true};
    }

    CellRec& Put(int cell, const char* name, CellKind kind, float coefficient = 0) {
        project->Cells[cell] = {.Name = name, .Kind = kind, .Param1 = coefficient, .Placed = true};
        return project->Cells[cell];
    }

    std::string Text() const { return ReportText(*project, *work, {"2026-11-22", "21:55:26"}); }

    std::unique_ptr<Project> project = std::make_unique<Project>();
    std::unique_ptr<WorkNetwork> work = std::make_unique<WorkNetwork>();
};

TEST_F(Report, WholeTextLineByLine) {
    EXPECT_EQ(
        Text(),
        Lines({
            "",
            "****************************************************************",
            "RESULTS CALCULATION    (ver.              2.6.3)        2026-11-22    21:55:26",
            "Project:      /plants/Caffè.iv",
            "Mode: Graphic",
            "",
            "Fluid: [3] Water 20 C",
            "Density [kg/mc]:             998.2        viscosity:     .001002 ",
            "",
            "Roughness[m]:                .0001 ",
            "",
            "Correlation:  Incompressible fluid",
            "Section:      Circular",
            "",
            "Point 1       Pressure [Pa],[bar]          202650       2.            Known",
            "Point 2       Pressure [Pa],[bar]          151987.5     1.5           ",
            "Point 4       Pressure [Pa],[bar]         -1234.5       -.012         ",
            "",
            "pipe 1        P 1-P 2       [Pa]           50662.5      [Pa/m]         4053 ",
            "pipe 3        P 4-P 2       [Pa]          -153222       [Pa/m]        -19152.75 ",
            "",
            "pipe           1 ",
            "   Flow rate [kg/h],[mc/h]   1800          1.803246 ",
            "   Diameter [mm]             27.9         \0261",
            "   Lenght [m]  12.5 ",
            "   Height [m] Z1             0            Z2             3 ",
            "   Speed [m/s]              .819",
            "   Reynolds   22773.041",
            "pipe           3 ",
            "   Flow rate [kg/h],[mc/h]  -900          -.901623 ",
            "   Diameter [mm]             28           ",
            "   Lenght [m]  8 ",
            "   Height [m] Z1            -2            Z2             3 ",
            "   Speed [m/s]              -.407",
            "   Reynolds   -11345.853",
            "",
            "PUMPS INSERTED",
            "Pump 30-160",
            "Min flow rate, max [kg/h]    900           7200 ",
            "Flow rate calculated [kg/h]  1800 ",
            "",
            "INSERTED CONCENTRATED PRESSURE DROPS",
            "Gate valve",
            "Coefficient    .2 ",
            "Filter",
            "Fixed drop [Pa]              5000 ",
            "Coefficient    1.5 ",
        }));
}

TEST_F(Report, SettingsChooseTheWords) {
    project->Mode = WorkMode::Table;
    project->EquationType = Equation::Compressible;
    project->SectionType = Section::Rectangular;
    project->PressureUnit = Unit::MilliBar;
    project->PressureUnitFactor = kPascalPerMilliBar;

    const std::string sides = std::string("   Side a [mm]               28           ") +
                              "   Side b [mm]               65.4 ";
    const std::vector<std::string> expected = {
        "Mode: Table", "Correlation:  Compressible gas", "Section:      Rectangular",
        "Point 2       Pressure [Pa],[mbar]         151987.5     1500.         ", sides};
    for (const std::string& line : expected) EXPECT_THAT(Text(), HasSubstr(line + "\r\n"));
    EXPECT_THAT(Text(), testing::Not(HasSubstr("Diameter")));

    project->Mode = WorkMode::SinglePipe;
    EXPECT_THAT(Text(), HasSubstr("Mode: Single computation\r\n"));
}

TEST_F(Report, ClockTextsHaveOneFormEverywhere) {
    const ReportTime now = CurrentReportTime();
    EXPECT_TRUE(std::regex_match(now.date, std::regex("20\\d\\d-[01]\\d-[0-3]\\d"))) << now.date;
    EXPECT_TRUE(std::regex_match(now.time, std::regex("[0-2]\\d:[0-5]\\d:[0-6]\\d"))) << now.time;
}

}  // namespace
}  // namespace idrova
