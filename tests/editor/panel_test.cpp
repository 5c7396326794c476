// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "editor/messages.h"
#include "editor/panel_edits.h"
#include "model/project_file.h"
#include "plant.h"

namespace idrova {
namespace {

/// One pipe of 1 m, selected.
class Panel : public testing::Test {
  protected:
    Panel() {
        plant.Do("L2,5 L8,5 R5,5");
        plant.project.FluidDensity = 1000;
        panel = ShowPipeData(plant.project);
    }

    Plant plant;
    Project& project = plant.project;
    PipeRec& pipe = plant.project.Pipes[1];
    PipePanel panel;
};

TEST_F(Panel, ShowsAPipeAsItIs) {
    plant.Do("L8,5 L8,9 R8,7");
    PipeRec& second = project.Pipes[2];
    second.FlowRate = 0.5F;
    second.Length = 12.5F;
    second.Diameter = 0.0601F;
    second.OuterSize = 0.07F;
    second.Z2 = 7;
    second.FlowFromPoint = 3;
    project.PressureUnknown[2] = false;
    project.Points[2].Pressure = 2.5F * kPascalPerBar;
    project.Points[3].Pressure = 101325.0F / 3;
    const PipePanel shown = ShowPipeData(project);
    EXPECT_EQ(shown.caption, "Pipe 2");
    EXPECT_FALSE(shown.flowKnown);
    EXPECT_EQ(shown.kgPerHour + shown.cubicMetresPerHour, "");
    EXPECT_EQ(shown.computedKgPerHour, "1800.");
    EXPECT_EQ(shown.computedCubicMetresPerHour, "1.8");
    EXPECT_EQ(shown.length, "12.5");
    EXPECT_EQ(shown.nominalSize, 0);
    EXPECT_EQ(shown.innerSize, "60.1");
    EXPECT_EQ(shown.outerSize, "70");
    EXPECT_EQ(shown.start, (PointPanel{"P2", "Z2[m]", "0", true, "2.5", "", false}));
    EXPECT_EQ(shown.end, (PointPanel{"P3", "Z3[m]", "7", false, "", ".333", true}));
    EXPECT_EQ(shown.unitLabel, "[bar]");
}

TEST_F(Panel, WritesLargeComputedFlowsWithAnExponent) {
    const struct {
        float flow;
        const char* text;
    } cases[] = {{1e6F / 3600, "1000000."},
                 {2e6F / 3600, "2.00E+06"},
                 {-2e6F / 3600, "-2.00E+06"},
                 {-0.001F, "-3.6"},
                 {0, "."}};
    for (const auto& c : cases) {
        pipe.FlowRate = c.flow;
        EXPECT_EQ(ShowPipeData(project).computedKgPerHour, c.text);
    }
}

TEST_F(Panel, IsEmptyWithoutAPipe) {
    plant.Do("R9,9");
    panel = ShowPipeData(project);
    EXPECT_EQ(panel.pipe, 0);
    EXPECT_EQ(panel.caption, "Pipe");
    EXPECT_EQ(panel.innerSize + panel.start.caption + panel.computedKgPerHour, "");
    const PipePanel empty = panel;
    const std::string before = ProjectFileText(project);
    ChooseFlow(project, panel, true);
    TypeKgPerHour(project, panel, "1");
    TypeLength(project, panel, "1");
    TypeInnerSize(project, panel, "1");
    TypeOuterSize(project, panel, "1");
    ChoosePipeSize(project, panel, 1);
    TypeHeight(project, panel, PipeEnd::End, "1");
    ChoosePressure(project, panel, PipeEnd::Start, true);
    TypePressure(project, panel, PipeEnd::End, "1");
    ChooseDirection(project, panel, PipeEnd::End);
    EXPECT_TRUE(TypeCubicMetresPerHour(project, panel, "1", plant.boxes));
    EXPECT_EQ(panel, empty);
    EXPECT_EQ(ProjectFileText(project), before);
    EXPECT_THAT(BrokenInvariants(project, plant.editor), testing::IsEmpty());
}

TEST_F(Panel, KeepsBothFlowUnitsInStep) {
    TypeKgPerHour(project, panel, "3600");  // unknown: not taken
    EXPECT_EQ(pipe.FlowRate, 0);
    ChooseFlow(project, panel, true);
    EXPECT_FALSE(project.FlowUnknown[1]);
    EXPECT_EQ(panel.kgPerHour, "");
    TypeKgPerHour(project, panel, "3600 kg");
    EXPECT_EQ(pipe.FlowRate, 1);
    EXPECT_EQ(panel.kgPerHour, "3600 kg");
    EXPECT_EQ(panel.cubicMetresPerHour, "3.6");
    EXPECT_TRUE(TypeCubicMetresPerHour(project, panel, "1.8", plant.boxes));
    EXPECT_EQ(pipe.FlowRate, 0.5F);
    EXPECT_EQ(panel.kgPerHour, "1800");
    EXPECT_EQ(panel.cubicMetresPerHour, "1.8");
    TypeKgPerHour(project, panel, "1e99");
    EXPECT_THAT(BrokenInvariants(project, plant.editor), testing::IsEmpty());
    ChooseFlow(project, panel, false);
    EXPECT_TRUE(project.FlowUnknown[1]);
    EXPECT_EQ(panel.kgPerHour, "");
    pipe.FlowRate = 0.25F;
    ChooseFlow(project, panel, true);  // a computed flow becomes the given one
    EXPECT_EQ(panel.kgPerHour, "900");
}

TEST_F(Panel, NeedsAFluidForVolumeFlows) {
    project.FluidDensity = 0;
    ChooseFlow(project, panel, true);
    TypeKgPerHour(project, panel, "36");
    EXPECT_EQ(panel.cubicMetresPerHour, "");
    EXPECT_FALSE(TypeCubicMetresPerHour(project, panel, "5", plant.boxes));
    EXPECT_EQ(plant.boxes.shown, std::vector<MessageBox>{kFluidForVolumeFlow});
    EXPECT_EQ(pipe.FlowRate, 0.01F);
    EXPECT_EQ(panel.cubicMetresPerHour, "");
}

TEST_F(Panel, ReplacesNegativeSizes) {
    const struct {
        const char* typed;
        const char* kept;
        float stored;  ///< typed number, m
    } cases[] = {{"12.5", "12.5", 12.5F}, {"-5", "0", 0},  {"", "", 0},          {"-", "-", 0},
                 {"abc", "abc", 0},       {"3e", "3e", 3}, {" .5x", " .5x", .5F}};
    for (const auto& c : cases) {
        TypeLength(project, panel, c.typed);
        TypeInnerSize(project, panel, c.typed);
        TypeOuterSize(project, panel, c.typed);
        EXPECT_EQ(panel.length, c.kept);
        EXPECT_EQ(panel.innerSize, c.kept);
        EXPECT_EQ(panel.outerSize, c.kept);
        EXPECT_EQ(pipe.Length, c.stored);
        EXPECT_FLOAT_EQ(pipe.Diameter, c.stored / 1000);
        EXPECT_FLOAT_EQ(pipe.OuterSize, c.stored / 1000);
    }
}

TEST_F(Panel, ReplacesHeightsThatAreNotAboveZero) {
    const struct {
        const char* typed;
        const char* kept;
        int stored;
    } cases[] = {{"12", "12", 12}, {"2.5", "2.5", 2},         {"3.5", "3.5", 4}, {"-3", "0", 0},
                 {"", "0", 0},     {"99999", "99999", 32767}, {"x", "0", 0}};
    for (const auto& c : cases) {
        TypeHeight(project, panel, PipeEnd::Start, c.typed);
        EXPECT_EQ(panel.start.height, c.kept);
        EXPECT_EQ(pipe.Z1, c.stored);
        EXPECT_EQ(pipe.Z2, 0);
    }
    TypeHeight(project, panel, PipeEnd::End, "8");
    EXPECT_EQ(pipe.Z2, 8);
}

TEST_F(Panel, NominalSizesFillBothDiametersAndAreFoundAgain) {
    for (int size = 1; size <= 12; ++size) {
        ChoosePipeSize(project, panel, size);
        pipe.OuterSize = 0;  // the project file may hold any
        plant.Do("R5,5");
        EXPECT_EQ(ShowPipeData(project), panel) << size;
    }
    ChoosePipeSize(project, panel, 7);
    EXPECT_EQ(panel.innerSize + " " + panel.outerSize, "53.8 60.3");
    EXPECT_FLOAT_EQ(pipe.Diameter, 0.0538F);
    EXPECT_FLOAT_EQ(pipe.OuterSize, 0.0603F);
    TypeInnerSize(project, panel, "54");
    EXPECT_EQ(panel.nominalSize, 0);
}

TEST_F(Panel, LeavesTheSidesOfARectangleAlone) {
    project.SectionType = Section::Rectangular;
    pipe.Diameter = 0.0538F;
    pipe.OuterSize = 0.2F;
    plant.Do("R5,5");
    const PipePanel shown = ShowPipeData(project);
    EXPECT_EQ(shown.nominalSize, 0);
    EXPECT_EQ(shown.outerSize, "200");
    EXPECT_EQ(shown.section.firstSideLabel, "a [mm]");
}

TEST_F(Panel, TakesPressuresInTheUnitShown) {
    TypePressure(project, panel, PipeEnd::Start, "2");  // unknown: not taken
    EXPECT_EQ(project.Points[1].Pressure, 0);
    ChoosePressure(project, panel, PipeEnd::Start, true);
    EXPECT_EQ(panel.start.given + panel.start.computed, "");
    TypePressure(project, panel, PipeEnd::Start, "2");
    EXPECT_EQ(project.Points[1].Pressure, 202650);
    EXPECT_FALSE(project.PressureUnknown[1]);
    EXPECT_TRUE(project.PressureUnknown[2]);
    ChoosePressureUnit(project, Unit::MilliBar);
    panel = ShowPipeData(project);
    EXPECT_EQ(panel.start.given, "2000.");
    EXPECT_EQ(panel.unitLabel, "[mbar]");
    ChoosePressure(project, panel, PipeEnd::End, true);
    TypePressure(project, panel, PipeEnd::End, "1000");
    EXPECT_EQ(project.Points[2].Pressure, 101325);
    ChoosePressure(project, panel, PipeEnd::End, false);
    EXPECT_EQ(panel.end.computed, "1000.");
    EXPECT_EQ(panel.end.given, "");
}

}  // namespace
}  // namespace idrova
