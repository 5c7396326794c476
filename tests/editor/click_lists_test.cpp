// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <vector>

#include "plant.h"

namespace idrova {
namespace {

using testing::FloatEq;
using testing::IsEmpty;
using testing::Pointwise;

struct ClickList {
    const char *what = "", *script = "", *network = "", *messages = "";
};

constexpr const char* kDeleteQuestion =
    "The DELETE function is not tested yet!\rDo you want to delete the pipe ?  ";

constexpr ClickList kClickLists[] = {
    {"one pipe", "L2,5 L8,5", "1:1(2,5)-2(8,5)"},
    {"last column and row", "L50,50 L50,1", "1:1(50,50)-2(50,1)"},
    {"scrolled, beyond the grid at first", "S11,21 L41,1 L2,1 L5,1", "1:1(12,21)-2(15,21)"},
    {"same cell twice", "L2,5 L2,5 L3,3 L3,7", "1:1(3,3)-2(3,7)", "Length 0"},
    {"slanted", "L2,5 L3,6 L3,3 L3,7", "1:1(3,3)-2(3,7)", "Only orthogonsl paths"},

    {"loop of three closed by a fourth", "L2,2 L6,2 L6,2 L6,6 L6,6 L2,6 L2,6 L2,2",
     "1:1(2,2)-2(6,2) 2:2(6,2)-3(6,6) 3:3(6,6)-4(2,6) 4:4(2,6)-1(2,2)"},
    {"twin of a pipe", "L2,5 L8,5 L8,5 L2,5", "1:1(2,5)-2(8,5) 2:2(8,5)-1(2,5)"},

    {"T, ending in a pipe", "L2,5 L8,5 L5,9 L5,5",
     "1:1(2,5)-4(5,5) 2:3(5,9)-4(5,5) 3:4(5,5)-2(8,5)"},
    {"T, starting in a pipe", "L8,5 L2,5 L5,5 L5,9",
     "1:1(8,5)-3(5,5) 2:3(5,5)-4(5,9) 3:3(5,5)-2(2,5)"},
    {"both ends split pipes", "L2,2 L2,8 L6,2 L6,8 L6,5 L2,5",
     "1:1(2,2)-6(2,5) 2:3(6,2)-5(6,5) 3:5(6,5)-6(2,5) 4:6(2,5)-2(2,8) 5:5(6,5)-4(6,8)"},
    {"cross: a fourth pipe into a T", "L2,5 L8,5 L5,9 L5,5 L5,5 L5,2",
     "1:1(2,5)-4(5,5) 2:3(5,9)-4(5,5) 3:4(5,5)-2(8,5) 4:4(5,5)-5(5,2)"},
    {"crossing without a joint", "L2,5 L8,5 L5,2 L5,8", "1:1(2,5)-2(8,5) 2:3(5,2)-4(5,8)"},
    {"an end in a crossing joins both pipes", "L2,5 L8,5 L5,2 L5,8 L6,5 L5,5",
     "1:1(2,5)-6(5,5) 2:3(5,2)-6(5,5) 3:5(6,5)-6(5,5) 4:6(5,5)-5(6,5) 5:6(5,5)-4(5,8) "
     "6:5(6,5)-2(8,5)"},
    {"inside a pipe lengthwise", "L2,5 L9,5 L4,5 L6,5",
     "1:1(2,5)-3(4,5) 2:3(4,5)-4(6,5) 3:3(4,5)-4(6,5) 4:4(6,5)-2(9,5)"},
    {"over the end of another pipe", "L2,5 L6,5 L6,2 L6,8 L9,5 L6,5",
     "1:1(2,5)-2(6,5) 2:3(6,2)-2(6,5) 3:5(9,5)-2(6,5) 4:2(6,5)-4(6,8)"},

    {"pump cuts a pipe", "L2,5 L6,5 pump L4,5", "1:1(2,5)-3(4,5) 2:4(4,5)-2(6,5)"},
    {"loss cuts a pipe drawn backwards", "L6,5 L2,5 loss L4,5", "1:3(4,5)-2(2,5) 2:4(4,5)-1(6,5)"},
    {"pump cuts a pipe drawn upwards", "L5,8 L5,2 pump L5,3", "1:3(5,3)-2(5,2) 2:4(5,3)-1(5,8)"},
    {"component beside a joint", "L2,5 L8,5 L5,9 L5,5 loss L6,5 pump L5,6",
     "1:1(2,5)-4(5,5) 2:7(5,6)-4(5,5) 3:4(5,5)-5(6,5) 4:6(6,5)-2(8,5) 5:8(5,6)-3(5,9)"},
    {"component off the pipes", "L2,5 L6,5 pump L4,6", "1:1(2,5)-2(6,5)",
     "The component must be inserted in a pipe"},
    {"component on an end", "L2,5 L6,5 pump L6,5", "1:1(2,5)-2(6,5)",
     "The component can not be positioned on an extreme"},
    {"pipe begun on a component", "L2,5 L6,5 pump L4,5 L4,5 L4,9 L3,9",
     "1:1(2,5)-3(4,5) 2:4(4,5)-2(6,5) 3:5(4,9)-6(3,9)", "The cell is occupied by a component"},
    {"pipe ended on a component", "L2,5 L6,5 pump L4,5 L4,9 L4,5 L7,9 L7,8",
     "1:1(2,5)-3(4,5) 2:4(4,5)-2(6,5) 3:5(7,9)-6(7,8)", "The cell is occupied by a component"},

    {"deleting shared and unshared ends", "L2,5 L8,5 L8,5 L8,9 R5,5 delete L2,5 L2,9",
     "2:2(8,5)-3(8,9) 3:4(2,5)-5(2,9)", "1 ?"},
    {"a deleted pipe splits and joins no more", "L2,5 L8,5 R5,5 delete L5,9 L5,5 L2,5 L2,9",
     "2:3(5,9)-4(5,5) 3:5(2,5)-6(2,9)", "1 ?"},
    {"deleting a piece frees the component's cell", "L2,5 L6,5 pump L4,5 R3,5 delete L4,9 L4,5",
     "2:4(4,5)-2(6,5) 3:5(4,9)-4(4,5)", "1 ?"},
    {"a deleted component leaves a joint that takes another",
     "L2,5 L6,5 pump L4,5 R4,5 delete loss L4,5", "1:1(2,5)-3(4,5) 2:4(4,5)-2(6,5)",
     "Do you want to delete the component ?"},
    {"a deleted component's cell joins as a node",
     "L2,5 L6,5 pump L4,5 R4,5 delete L4,5 L4,9 L3,9 L3,5",
     "1:1(2,5)-7(3,5) 2:3(4,5)-2(6,5) 3:3(4,5)-5(4,9) 4:6(3,9)-7(3,5) 5:7(3,5)-3(4,5)",
     "Do you want to delete the component ?"},
    {"a given pressure there stays",
     "L2,5 L6,5 pump L4,5 R5,5 again end1=given p1=2 R4,5 delete L4,9 L4,5 R3,5 again p2:2./",
     "1:1(2,5)-3(4,5) 2:3(4,5)-2(6,5) 3:5(4,9)-3(4,5)", "Do you want to delete the component ?"},
    {"the next pipe begins where one ends", "L2,5 G8,5 G8,9 L2,9",
     "1:1(2,5)-2(8,5) 2:2(8,5)-3(8,9) 3:3(8,9)-4(2,9)"},
    {"a component stays armed", "L2,5 L8,5 loss G4,5 G4,6 L6,5 L7,5",
     "1:1(2,5)-3(4,5) 2:4(4,5)-5(6,5) 3:6(6,5)-2(8,5)", "The component must be inserted in a pipe"},
    {"each of two pipes over each other can be selected",
     "L2,5 L8,5 L8,5 L2,5 selected:2 R5,5 selected:1 R5,5 selected:2 R5,5 selected:1 R6,5 "
     "selected:1 R6,5 selected:2 L20,20 R20,20 R6,5 selected:1 R9,9 selected:0",
     "1:1(2,5)-2(8,5) 2:2(8,5)-1(2,5)"},
    {"the piece between two components can be selected",
     "L2,5 L8,5 pump L4,5 pump L5,5 R4,5 selected:c204 R4,5 selected:1 R4,5 selected:2 R4,5 "
     "selected:c204 R5,5 selected:c205 R5,5 selected:2 R5,5 selected:3",
     "1:1(2,5)-3(4,5) 2:4(4,5)-5(5,5) 3:6(5,5)-2(8,5)"},

    {"pipes and points are found by number",
     "L2,5 L8,5 L8,5 L8,9 R20,20 S9,9 find=1 selected:1 L1,1 R1,1 find=P3 selected:2 find=p2 "
     "selected:1 find=3 find=P4 find=x selected:1 L9,5 L9,6",
     "1:1(2,5)-2(8,5) 2:2(8,5)-3(8,9) 3:4(10,9)-5(10,10)"},

    {"pipes are added to those selected, and taken out",
     "L2,5 L8,5 L2,7 L8,7 L2,9 L8,9 R4,5 C4,9 selected:1+3 C20,20 C4,7 selected:1+2+3 C4,5 "
     "selected:2+3 C4,9 C4,7 selected:0 C4,7 C4,5 selected:2+1 escape selected:2 C4,9 S9,9 "
     "selected:2+3 S1,1 find=1 selected:1 C4,7 L20,20 C4,9 selected:1+2 L20,20 L20,25 selected:4 "
     "C4,9 R4,5 selected:1",
     "1:1(2,5)-2(8,5) 2:3(2,7)-4(8,7) 3:5(2,9)-6(8,9) 4:7(20,20)-8(20,25)"},
    {"a cell adds its pipes in turn, a component gives way",
     "L2,5 L8,5 pump L5,5 R5,5 selected:c205 C5,5 selected:1 C5,5 selected:1+2 C5,5 selected:0",
     "1:1(2,5)-3(5,5) 2:4(5,5)-2(8,5)"},
    {"of several pipes the current one is deleted",
     "L2,5 L8,5 L2,7 L8,7 L2,9 L8,9 R4,7 C4,5 C4,9 delete selected:1+3 undo selected:2+1+3 redo",
     "1:1(2,5)-2(8,5) 3:5(2,9)-6(8,9)", "2 ?"},

    {"the pipe drawn last", "L2,5 L8,5 L3,7 L6,7 delete", "1:1(2,5)-2(8,5)", "2 ?"},
};

/// The questions about pipes are long: "3 ?" stands for the one about pipe 3.
std::string Expanded(const std::string& messages) {
    return (messages.size() == 3 ? kDeleteQuestion : "") + messages;
}

TEST(ClickLists, GiveTheirNetworks) {
    for (const ClickList& list : kClickLists) {
        Plant plant;
        plant.Do(list.script);
        EXPECT_EQ(plant.Network(), list.network) << list.what;
        EXPECT_EQ(plant.Messages(), Expanded(list.messages)) << list.what;
        EXPECT_THAT(BrokenInvariants(plant.project, plant.editor), IsEmpty()) << list.what;
        EXPECT_TRUE(SurvivesReopening(plant.project)) << list.what;
    }
}

TEST(SplitPipes, KeepTheirDataInTheFirstHalfOnly) {
    Plant plant;
    plant.project.Pipes[3].Length = 7;  // left by a project before
    plant.project.FlowUnknown[3] = false;
    plant.Do(
        "L2,5 L8,5 R5,5 again inner=100 z2=9 from2= flow=given kg/h=36 L5,9 L5,5 selected:3 "
        "again length:0 inner:0 z2:0 from2:no flow:unknown R3,5 again inner:100 z2:9 "
        "from2:yes flow:given kg/h:36");
}

TEST(Components, TakeTheirDataFromTheChoice) {
    Plant plant;
    plant.Do(
        "L2,5 L6,5 L2,7 L2,9 R4,5 again length=12 inner=50 outer=60 z1=10 z2=20 pump L5,5 pump "
        "L2,8");
    const CellRec& pump = plant.project.Cells[plant.Place(5, 5)];
    const ComponentChoice& choice = plant.editor.choice;
    EXPECT_EQ(pump.Name, "feed pump");
    EXPECT_EQ(pump.PipeAxis, Axis::Horizontal);
    EXPECT_THAT(
        (std::vector<double>{pump.MinFlow, pump.MaxFlow, pump.Param1, pump.Param2,
                             pump.PumpConstant}),
        Pointwise(FloatEq(), {0.5, 2.0, choice.CompValue1, choice.CompValue2, choice.CompValue3}));
    EXPECT_NE(pump.PumpConstant, 0);
    EXPECT_EQ(plant.project.Cells[plant.Place(2, 8)].Direction, Delivery::Down);
    plant.Do("R3,5 again z1:10 z2:18 R6,5 again length:12 inner:50 outer:0 z1:18 z2:20");
    plant.lists.pumps[1].qMax = plant.lists.pumps[1].qMin;
    plant.Do("pump L3,5");
    EXPECT_EQ(plant.Messages(), "The pump has no curve: its flow rates are equal");
    EXPECT_EQ(plant.project.numtubo, 4);
}

TEST(Components, ReplaceTheSelectedOneInItsPlace) {
    Plant plant;
    plant.lists.pumps[2] = {"other pump", 200000, 0.5F, 100000, 2};
    plant.lists.pumps.count = 2;
    plant.Do("L2,5 L8,5 pump L5,5 R5,5 turn pump");
    EXPECT_TRUE(IsArmed(plant.editor)) << "it is the same";
    plant.Do("R20,20 R5,5");
    ChooseComponentAt(plant.editor, plant.lists, 1);
    ArmInsertion(plant.project, plant.editor, plant.boxes);
    EXPECT_EQ(plant.Messages(),
              "Replace feed pump by other pump?\rWith Cancel the next click on a pipe inserts it.");
    const CellRec& cell = plant.project.Cells[plant.Place(5, 5)];
    EXPECT_EQ(cell.Name, "other pump");
    EXPECT_EQ(cell.Direction, Delivery::Left) << "as the one before";
    EXPECT_FALSE(IsArmed(plant.editor));
    EXPECT_EQ(plant.Network(), "1:1(2,5)-3(5,5) 2:4(5,5)-2(8,5)");
}

TEST(Components, ArmedFollowTheKindChosenLast) {
    Plant plant;
    plant.Do("L2,5 L6,5 pump");
    ChooseComponentKind(plant.editor, plant.lists, CellKind::Loss);
    plant.Do("L4,5");
    EXPECT_EQ(plant.project.Cells[plant.Place(4, 5)].Kind, CellKind::Loss);
    plant.Do("pump");
    plant.lists.losses = {};
    ChooseComponentKind(plant.editor, plant.lists, CellKind::Loss);
    EXPECT_EQ(plant.editor.state, InsertState::FirstPoint);
    plant.Do("loss");
    EXPECT_EQ(plant.Messages(), "Select a component");
    EXPECT_EQ(plant.editor.state, InsertState::FirstPoint);
}

TEST(Components, StayChosenWhenTheListsAreLoadedAgain) {
    Plant plant;
    PumpDb& pumps = plant.lists.pumps;
    pumps[2] = pumps[3] = pumps[1];
    pumps[2].pMax = 600000;
    pumps[3].name = "other pump";
    pumps.count = 3;
    plant.Do("pump");
    ChooseComponentAt(plant.editor, plant.lists, 1);
    const auto reload = [&plant] {
        RefreshComponentChoice(plant.editor, plant.lists);
        return std::pair(plant.editor.componentPosition, plant.editor.choice.ChosenPump.pMax);
    };
    EXPECT_EQ(reload(), std::pair(1, 600000.0F)) << "not the first of that name";
    std::swap(pumps[2], pumps[3]);
    EXPECT_EQ(reload(), std::pair(2, 600000.0F)) << "it moved";
    pumps[1].name = "renamed pump";
    pumps[3].pMax = 500000;
    EXPECT_EQ(reload(), std::pair(2, 500000.0F)) << "its values changed";
    EXPECT_TRUE(IsArmed(plant.editor));
    pumps.count = 2;
    EXPECT_EQ(reload().first, 0) << "it is gone";
    EXPECT_FALSE(IsArmed(plant.editor));
}

/// Pipes that touch nothing, from the top of the grid, and a script that finds no room for all.
constexpr struct {
    int pipes, deletedPoints;
    const char *script, *messages;
    int lastPipe, lastPoint;
} kFull[] = {
    {200, 0, "L1,50 L9,50 pump L2,1",
     "Max number of pipes reached; Max number of pipes reached; Max number of pipes reached", 200,
     400},
    {198, 0, "L2,1 L2,2 L2,2 L2,50", "Max number of pipes reached", 200, 398},  // two cuts, one
    {1, 397, "L2,50 L8,50 pump L2,1 L3,1 L3,50", "", 5, 400},  // deleted numbers are taken again
    {200, 0, "R2,1 delete R10,2 delete L2,50 L8,50 L5,48 L5,50",
     "The DELETE function is not tested yet!\rDo you want to delete the pipe ?  1 ?; "
     "The DELETE function is not tested yet!\rDo you want to delete the pipe ?  15 ?; "
     "Max number of pipes reached",
     200, 400},
};

TEST(Capacity, IsCheckedBeforeAnythingChanges) {
    for (const auto& c : kFull) {
        Plant plant;
        for (int i = 0; i < c.pipes; ++i) {
            for (const int column : {1, 3}) plant.Click(column + 4 * (i % 12), 1 + i / 12);
        }
        EXPECT_EQ(plant.Messages(), "");
        for (int i = 0; i < c.deletedPoints; ++i) {
            plant.project.Points[++plant.project.npres].X = kDeleted;
        }
        plant.Do(c.script);
        EXPECT_EQ(plant.Messages(), c.messages);
        EXPECT_EQ(plant.project.numtubo, c.lastPipe);
        EXPECT_EQ(plant.project.npres, c.lastPoint);
        EXPECT_EQ(plant.editor.state, InsertState::FirstPoint);
        EXPECT_THAT(BrokenInvariants(plant.project, plant.editor), IsEmpty());
    }
}

}  // namespace
}  // namespace idrova
