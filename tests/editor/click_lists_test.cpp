// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <vector>

#include "editor/messages.h"
#include "plant.h"

namespace idrova {
namespace {

using testing::IsEmpty;

struct ClickList {
    const char* what;
    const char* script;
    const char* network;
    const char* messages = "";
};

constexpr const char* kDeleteQuestion =
    "The DELETE function is not tested yet!\rDo you want to delete the pipe ?  ";

const std::vector<ClickList> kClickLists = {
    {"first point alone", "L2,5", ""},
    {"one pipe", "L2,5 L8,5", "1:1(2,5)-2(8,5)"},
    {"last column and row", "L50,50 L50,1", "1:1(50,50)-2(50,1)"},
    {"abort", "L2,5 R9,9 L3,3 L3,7", "1:1(3,3)-2(3,7)"},
    {"same cell twice", "L2,5 L2,5 L3,3 L3,7", "1:1(3,3)-2(3,7)", "Length 0"},
    {"slanted", "L2,5 L3,6 L3,3 L3,7", "1:1(3,3)-2(3,7)", "Only orthogonsl paths"},

    {"start shared", "L2,5 L8,5 L8,5 L8,9", "1:1(2,5)-2(8,5) 2:2(8,5)-3(8,9)"},
    {"end shared", "L2,5 L8,5 L8,9 L8,5", "1:1(2,5)-2(8,5) 2:3(8,9)-2(8,5)"},
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
    {"one end shared, the other splits", "L2,2 L2,8 L6,5 L6,8 L6,5 L2,5",
     "1:1(2,2)-5(2,5) 2:3(6,5)-4(6,8) 3:3(6,5)-5(2,5) 4:5(2,5)-2(2,8)"},
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
    {"component on a component", "L2,5 L6,5 pump L4,5 loss L4,5", "1:1(2,5)-3(4,5) 2:4(4,5)-2(6,5)",
     "The component must be inserted in a pipe"},
    {"component on an end", "L2,5 L6,5 pump L6,5", "1:1(2,5)-2(6,5)",
     "The component can not be positioned on an extreme"},
    {"component where a pipe passes another's end",
     "L2,5 L9,5 L9,2 L9,8 L5,5 L5,8 L9,9 L9,9 pump L9,5",
     "1:1(2,5)-5(5,5) 2:3(9,2)-4(9,8) 3:5(5,5)-6(5,8) 4:5(5,5)-2(9,5)",
     "Length 0; The component can not be positioned on an extreme"},
    {"aborted component", "L2,5 L6,5 pump R4,5 L4,5 L4,9",
     "1:1(2,5)-3(4,5) 2:3(4,5)-4(4,9) 3:3(4,5)-2(6,5)"},
    {"pipe begun on a component", "L2,5 L6,5 pump L4,5 L4,5 L4,9 L3,9",
     "1:1(2,5)-3(4,5) 2:4(4,5)-2(6,5) 3:5(4,9)-6(3,9)", "The cell is occupied by a component"},
    {"pipe ended on a component", "L2,5 L6,5 pump L4,5 L4,9 L4,5 L7,9 L7,8",
     "1:1(2,5)-3(4,5) 2:4(4,5)-2(6,5) 3:5(7,9)-6(7,8)", "The cell is occupied by a component"},
    {"pipe across a component", "L2,5 L6,5 pump L4,5 L4,2 L4,8",
     "1:1(2,5)-3(4,5) 2:4(4,5)-2(6,5) 3:5(4,2)-6(4,8)"},

    {"deleting shared and unshared ends", "L2,5 L8,5 L8,5 L8,9 R5,5 delete L2,5 L2,9",
     "2:2(8,5)-3(8,9) 3:4(2,5)-5(2,9)", "1 ?"},
    {"a deleted pipe splits and joins no more", "L2,5 L8,5 R5,5 delete L5,9 L5,5 L2,5 L2,9",
     "2:3(5,9)-4(5,5) 3:5(2,5)-6(2,9)", "1 ?"},
    {"deleting a piece frees the component's cell", "L2,5 L6,5 pump L4,5 R3,5 delete L4,9 L4,5",
     "2:4(4,5)-2(6,5) 3:5(4,9)-4(4,5)", "1 ?"},
    {"nothing selected, nothing deleted", "L2,5 L8,5 R9,9 delete", "1:1(2,5)-2(8,5)"},
    {"the pipe drawn last", "L2,5 L8,5 L3,7 L6,7 delete", "1:1(2,5)-2(8,5)", "2 ?"},
};

/// The questions about pipes are long: "3 ?" stands for the one about pipe 3.
std::string Expanded(std::string messages) {
    if (!messages.ends_with(" ?")) return messages;
    return kDeleteQuestion + messages;
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

struct Arm {
    int column, row;
};

/// Draws the arms of a cross one after the other, each from its tip or from the middle, after
/// `before`.
void DrawCross(Plant& plant, const std::vector<int>& order, unsigned fromTip) {
    constexpr Arm arms[] = {{10, 5}, {15, 10}, {10, 15}, {5, 10}};
    for (const int i : order) {
        const Arm& arm = arms[i];
        if ((fromTip >> i & 1U) != 0) {
            plant.Draw(arm.column, arm.row, 10, 10);
        } else {
            plant.Draw(10, 10, arm.column, arm.row);
        }
    }
}

TEST(Joints, FourPipesMeetInOnePointInEveryOrder) {
    std::vector<int> order = {0, 1, 2, 3};
    do {
        for (unsigned fromTip = 0; fromTip < 16; ++fromTip) {
            Plant plant;
            DrawCross(plant, order, fromTip);
            EXPECT_EQ(plant.project.numtubo, 4);
            EXPECT_EQ(plant.project.npres, 5);
            ASSERT_THAT(BrokenInvariants(plant.project, plant.editor), IsEmpty());
        }
    } while (std::ranges::next_permutation(order).found);
}

TEST(SplitPipes, KeepTheirDataInTheFirstHalfOnly) {
    Plant plant;
    plant.Do("L2,5 L8,5");
    PipeRec& pipe = plant.project.Pipes[1];
    pipe.Diameter = 0.1F;
    pipe.FlowFromPoint = 2;
    plant.project.FlowUnknown[1] = false;
    plant.project.Pipes[3].Length = 7;  // left by a project before
    plant.project.FlowUnknown[3] = false;
    plant.Do("L5,9 L5,5");
    EXPECT_EQ(pipe.Diameter, 0.1F);
    EXPECT_EQ(pipe.FlowFromPoint, 4);  // still against the drawing
    EXPECT_EQ(plant.project.Pipes[3].Length, 0);
    EXPECT_EQ(plant.project.Pipes[3].Diameter, 0);
    EXPECT_EQ(plant.project.Pipes[3].FlowFromPoint, 4);
    EXPECT_TRUE(plant.project.FlowUnknown[3]);
    EXPECT_EQ(plant.project.CurrentPipe, 3);
}

TEST(Components, TakeTheirDataFromTheChoice) {
    Plant plant;
    plant.Do("L2,5 L6,5 L2,7 L2,9");
    plant.project.Pipes[1].Length = 12;
    plant.project.Pipes[1].Diameter = 0.05F;
    plant.Do("pump L4,5 pump L2,8");
    const CellRec& right = plant.project.Cells[plant.Place(4, 5)];
    const CellRec& down = plant.project.Cells[plant.Place(2, 8)];
    EXPECT_EQ(right.Name, "feed pump");
    EXPECT_EQ(right.Direction, 1);
    EXPECT_EQ(right.PipeAxis, 1);
    EXPECT_EQ(right.MinFlow, 0.5F);
    EXPECT_EQ(right.MaxFlow, 2);
    EXPECT_EQ(right.Param1, static_cast<float>(plant.editor.choice.CompValue1));
    EXPECT_EQ(right.Param2, static_cast<float>(plant.editor.choice.CompValue2));
    EXPECT_EQ(right.PumpConstant, static_cast<float>(plant.editor.choice.CompValue3));
    EXPECT_NE(right.PumpConstant, 0);
    EXPECT_EQ(down.Direction, 2);
    EXPECT_EQ(plant.project.Pipes[3].Length, 12);
    EXPECT_EQ(plant.project.Pipes[3].Diameter, 0.05F);
    EXPECT_EQ(plant.project.Pipes[3].OuterSize, 0);
}

TEST(Components, DeletedLeaveAJointThatTakesAnother) {
    Plant plant;
    plant.Do("L2,5 L6,5 pump L4,5 R4,5 delete");
    EXPECT_EQ(plant.boxes.shown, std::vector<MessageBox>{kAskDeleteComponent});
    const CellRec& cell = plant.project.Cells[plant.Place(4, 5)];
    CellRec joint;
    joint.Kind = CellKind::Pump;
    EXPECT_EQ(cell, joint);
    EXPECT_THAT(BrokenInvariants(plant.project, plant.editor), IsEmpty());
    plant.Do("loss L4,5");
    EXPECT_EQ(cell.Kind, CellKind::Loss);
    EXPECT_EQ(cell.Name, "gate valve");
    EXPECT_EQ(plant.Network(), "1:1(2,5)-3(4,5) 2:4(4,5)-2(6,5)");
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
    ArmInsertion(plant.editor, plant.boxes);
    EXPECT_EQ(plant.Messages(), "Select a component");
    EXPECT_EQ(plant.editor.state, InsertState::FirstPoint);
}

/// `count` pipes that touch nothing, three rows of the grid apart from row 50.
void FillWithPipes(Plant& plant, int count) {
    for (int i = 0; i < count; ++i) {
        plant.Draw(1 + 4 * (i % 12), 1 + i / 12, 3 + 4 * (i % 12), 1 + i / 12);
    }
}

TEST(Capacity, TakesTwoHundredPipes) {
    Plant plant;
    FillWithPipes(plant, 200);
    EXPECT_EQ(plant.Messages(), "");
    EXPECT_EQ(plant.project.numtubo, 200);
    EXPECT_EQ(plant.project.npres, 400);
    const std::string full = plant.Network();
    plant.Do("L1,50 L9,50 pump L2,1");
    EXPECT_EQ(
        plant.Messages(),
        "Max number of pipes reached; Max number of pipes reached; Max number of pipes reached");
    EXPECT_EQ(plant.Network(), full);
    EXPECT_THAT(BrokenInvariants(plant.project, plant.editor), IsEmpty());
}

TEST(Capacity, IsCheckedBeforeASplitChangesAnything) {
    Plant plant;
    FillWithPipes(plant, 198);
    const std::string almostFull = plant.Network();
    plant.Do("L2,1 L2,2");  // would cut two pipes
    EXPECT_EQ(plant.Messages(), "Max number of pipes reached");
    EXPECT_EQ(plant.Network(), almostFull);
    EXPECT_EQ(plant.editor.state, InsertState::FirstPoint);
    plant.Do("L2,2 L2,50");
    EXPECT_EQ(plant.project.numtubo, 200);
    EXPECT_THAT(BrokenInvariants(plant.project, plant.editor), IsEmpty());
}

TEST(Capacity, OfPointsIsToldToo) {
    Plant plant;
    plant.Do("L2,5 L8,5");
    for (int i = 3; i <= kMaxPoints - 1; ++i)
        plant.project.Points[++plant.project.npres].X = kDeleted;
    plant.Do("L2,9 L8,9 pump L4,5 L8,5 L8,9");
    EXPECT_EQ(plant.Messages(), "Max number of points reached; Max number of points reached");
    EXPECT_EQ(plant.project.npres, kMaxPoints);
    EXPECT_EQ(plant.Network(), "1:1(2,5)-2(8,5) 2:2(8,5)-400(8,9)");
    EXPECT_THAT(BrokenInvariants(plant.project, plant.editor), IsEmpty());
}

}  // namespace
}  // namespace idrova
