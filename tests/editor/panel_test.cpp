// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "plant.h"
#include "projectfile/project_file.h"

namespace idrova {
namespace {

/// One pipe, selected, in a project with a fluid.
struct PipePlant : Plant {
    PipePlant() {
        project.settings.FluidDensity = 1000;
        Do("L2,5 L8,5 R5,5 again");
    }
};

constexpr const char* kScripts[] = {
    "kg/h=3600 kg/h:. again kg/h:.",  // unknown: not taken
    "flow=given kg/h: kg/h=3600kg kg/h:3600kg mc/h:3.6 again kg/h:3600 mc/h:3.6",
    "flow=given mc/h=1.8 mc/h:1.8 kg/h:1800 flow=unknown kg/h:1800. flow=given kg/h:1800",
    "flow=given kg/h=1e99 again",
    "length=12.5 length:12.5 again length:12.5 length=-5 length:0 again length:0",
    "length= length: again length:0 length=- length:- again length:0",
    "length=abc length:abc again length:0 length=3e length:3e again length:3",
    "inner=.5x inner:.5x again inner:.5 inner=-5 inner:0 again inner:0",
    "outer=60.3 outer:60.3 again outer:60.3 outer=-5 outer:0 again outer:0",
    "size=7 size:7 inner:53.8 outer:60.3 again size:7 outer:60.3 inner=54 size:0 size=13 size:0",
    "size=12 outer=70 R5,5 again size:12 outer:165 size=1 outer=70 R5,5 again size:1",
    "z1=12 z1:12 again z1:12 z1=2.5 z1:2.5 again z1:2 z1=3.5 again z1:4 z2:0 z2=8 again z2:8",
    "z1=9 z1=0.5 z1:0.5 z1=-3 z1:0 again z1:0 z1= z1: z1=12 z1:12 z1=99999 z1:99999 again z1:32767",
    "z2=x z2:x z2=12.7 z2:12.7 leave= z2:13 again z2:13",
    // As they are typed: what follows a negative digit is a part of that number.
    "inner=- inner:- inner=-5 inner:0 inner=03 inner:0 inner=0. inner:0 again inner:0",
    "length=-5 length=02 length:0 length= length: length=2 length:2 again length:2",
    "z1=-1 z1=02 z1:0 leave= z1=05 z1:05 z1=-1 z1=7 z1:7 again z1:7",
    "p1=2 p1:/. again p1:/. end1=given p1:/ p1=2 p1:2/ again p1:2./ p2:/. end1=unknown p1:/2.",
    // Of several pipes: what they agree in, and what goes to all.
    "L2,7 L8,7 R5,7 again length=3 size=7 z1=4 C5,5 again length: inner: size:0 z1: z2:0 length=12 "
    "length:12 z2=8.6 leave= z1: z2:9 flow=given kg/h=3 end1=given p1=2 from2= kg/h: p1:/ R5,5 "
    "again length:12 z1:0 z2:9 flow:unknown p1:/. from2:no R5,7 again length:12 z1:4 inner:53.8 "
    "C5,5 again length:12 size=6 size:6 inner:42.5 outer=60 inner=-7 inner:0 R5,5 again inner:0 "
    "outer:60",
    "end2=given p2=1 again p2:1./ p1:/. from2:no from2= from2:yes again from2:yes",
};

TEST(Panel, TakesAndStoresWhatIsTyped) {
    for (const char* const script : kScripts) {
        SCOPED_TRACE(script);
        PipePlant plant;
        plant.Do(script);
        EXPECT_THAT(BrokenInvariants(plant.project, plant.editor), testing::IsEmpty());
    }
}

TEST(Panel, TakesPressuresInTheUnitShown) {
    PipePlant plant;
    plant.Do("end1=given p1=2");
    EXPECT_EQ(plant.project.Points[1].Pressure, 202650);
    ChoosePressureUnit(plant.project.settings, Unit::MilliBar);
    plant.Do("again p1:2000./ p1=1000 again p1:1000./");
    EXPECT_EQ(plant.project.Points[1].Pressure, 101325);
    EXPECT_EQ(plant.panel.unitLabel, "[mbar]");
}

TEST(Panel, IsEmptyWithoutAPipe) {
    PipePlant plant;
    plant.Do("R9,9 again");
    EXPECT_EQ(plant.panel.caption, "Pipe");
    EXPECT_EQ(plant.panel.innerSize + plant.panel.start.caption + plant.panel.start.heightLabel,
              "Z1 [m]");
    const PipePanel empty = plant.panel;
    const std::string before = ProjectFileText(plant.project);
    for (const auto& [name, edit] : plant.edits) edit("1");
    EXPECT_EQ(plant.panel, empty);
    EXPECT_EQ(ProjectFileText(plant.project), before);
}

TEST(Panel, NeedsAFluidForVolumeFlows) {
    PipePlant plant;
    plant.project.settings.FluidDensity = 0;
    plant.Do("flow=given kg/h=36 mc/h: mc/h=5 mc/h: again kg/h:36");
    EXPECT_EQ(plant.Messages(), "To insert the volumetric flow rate select a fluid");
}

TEST(Panel, ShowsAPipeAsItIs) {
    PipePlant plant;
    Project& project = plant.project;
    PipeRec& second = project.Pipes[2];
    plant.Do("L8,5 L8,9 R8,7 again length=12.5 inner=60.1 outer=70 z2=7 from2= end1=given p1=2.5");
    EXPECT_FLOAT_EQ(second.Diameter, 0.0601F);
    EXPECT_FLOAT_EQ(second.OuterSize, 0.07F);
    project.Points[3].Pressure = 101325.0F / 3;
    const std::pair<float, const char*> flows[] = {
        {1e6F / 3600, "1000000."}, {-2e6F / 3600, "-2.00E+06"}, {0, "."}, {0.5F, "1800."}};
    for (const auto& [flow, text] : flows) {
        second.FlowRate = flow;
        EXPECT_EQ(ShowPipeData(project, plant.editor).computedKgPerHour, text);
    }
    plant.Do("again mc/h:1.8 length:12.5 inner:60.1 outer:70 size:0");
    EXPECT_EQ(plant.panel.caption, "Pipe 2");
    EXPECT_EQ(plant.panel.start, (PointPanel{"P2", "Z2[m]", "0", true, "2.5", "", false}));
    EXPECT_EQ(plant.panel.end, (PointPanel{"P3", "Z3[m]", "7", false, "", ".333", true}));
}

TEST(Panel, LeavesTheSidesOfARectangleAlone) {
    PipePlant plant;
    plant.project.settings.SectionType = Section::Rectangular;
    plant.Do("again inner=53.8 outer=200 size:0 R5,5 again outer:200 size:0");
    EXPECT_EQ(plant.panel.section.firstSideLabel, "a [mm]");
}

}  // namespace
}  // namespace idrova
