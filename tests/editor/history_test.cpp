// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/history.h"

#include <gtest/gtest.h>

#include "given.h"
#include "plant.h"

namespace idrova {
namespace {

constexpr struct {
    const char *before, *step, *name;
} kSteps[] = {
    {"", "L2,5 L8,5", "insert pipe"},
    {"L2,5 L8,5", "L5,2 L5,5", "insert pipe"},
    {"L2,5 L8,5 R4,5", "delete", "delete pipe"},
    {"L2,5 L8,5 pump L5,5 R4,5", "delete", "delete pipe"},
    {"L2,5 L8,5", "pump L5,5", "insert pump"},
    {"L2,5 L8,5 loss L5,5 R5,5", "delete", "delete loss"},
    {"L2,5 L8,5 pump L5,5 R5,5", "turn", "turn pump"},
    {"L2,5 L8,5 pump L5,5 R5,5", "loss", "replace pump"},
    {"L2,5 L8,5 R5,5 again", "length=1 length=12", "length of pipe 1"},
    {"L2,5 L8,5 R5,5 again length=1 left", "length=2", "length of pipe 1"},
    {"L2,5 L8,5 R5,5 again", "size=3 size=7", "diameter of pipe 1"},
    {"L2,5 L8,5 R5,5 again", "z2=7", "heights of pipe 1"},
    {"L2,5 L8,5 R5,5 again", "from2=", "direction of pipe 1"},
    {"L2,5 L8,5 R5,5 again", "flow=given kg/h=36", "flow rate of pipe 1"},
    {"L2,5 L8,5 R5,5 again flow=given kg/h=36 left", "flow=unknown", "flow rate of pipe 1"},
    {"L2,5 L8,5 R5,5 again length=7", "end2=given p2=2", "pressure of P2"},
    {"L2,5 L8,5 L2,7 L8,7 R5,5 again length=1 left C5,7 again", "length=1 length=12",
     "length of 2 pipes"},
    {"L2,5 L8,5 L2,7 L8,7 R5,5 C5,7 again", "z1=7 z1=72", "heights of 2 pipes"},
    {"L2,5 L8,5 L2,7 L8,7 R5,5 again length=7", "R5,7 again length=7", "length of pipe 2"},
};

TEST(History, EveryStepIsNamedTakenBackAndDoneAgain) {
    for (const auto& [before, step, name] : kSteps) {
        SCOPED_TRACE(std::string(before) + " | " + step);
        Plant plant;
        plant.Do(before);
        const Given was = GivenOf(plant.project);
        plant.Do(step);
        const Given is = GivenOf(plant.project);
        EXPECT_EQ(plant.history.UndoName(), name);
        plant.Do("undo");
        EXPECT_TRUE(GivenOf(plant.project) == was);
        EXPECT_EQ(plant.history.RedoName(), name);
        plant.Do("redo");
        EXPECT_TRUE(GivenOf(plant.project) == is);
        EXPECT_EQ(plant.history.RedoName(), "");
        plant.Do("undo L20,20 L20,25");
        EXPECT_EQ(plant.history.RedoName(), "") << "another step was done instead";
    }
}

TEST(History, WhatIsTypedAndTypedBackIsNoStep) {
    Plant plant;
    plant.Do("L2,5 L8,5 R5,5 again length=1 length=");
    EXPECT_EQ(plant.history.UndoName(), "insert pipe");
}

TEST(History, WhatASelectionCompletesIsNoStep) {
    Plant plant;
    plant.Do("L2,5 L8,5 R5,5 again size=7 pump L5,5 R7,5");
    EXPECT_GT(plant.project.Pipes[2].OuterSize, 0) << "the piece got none by the cut";
    EXPECT_EQ(plant.history.UndoName(), "insert pump");
}

TEST(History, ValuesOfManyPipesAreOneStep) {
    Plant plant;
    plant.Do("L2,5 L8,5 L8,5 L8,9");
    plant.project.Pipes[1].Length = plant.project.Pipes[2].Length = 3;
    plant.Do("R20,20");
    EXPECT_EQ(plant.history.UndoName(), "length of 2 pipes");
    plant.Do("undo");
    EXPECT_EQ(plant.project.Pipes[2].Length, 0);
}

TEST(History, LeavesWhatWasComputed) {
    Plant plant;
    plant.Do("L2,5 L8,5 L8,5 L8,9 R5,5 again length=1");
    Project& project = plant.project;
    project.Pipes[1].FlowRate = 3;
    project.Points[1].Pressure = 200;
    plant.Do("undo");
    EXPECT_EQ(project.Pipes[1].FlowRate, 3);
    plant.Do("redo from2= undo");
    EXPECT_EQ(project.Pipes[1].FlowRate, 3) << "turned with its end, and back";
    plant.Do("delete undo");
    EXPECT_EQ(project.Pipes[1].FlowRate, 0) << "another pipe may have stood there";
    EXPECT_EQ(project.Points[1].Pressure, 0);
    EXPECT_EQ(project.CurrentPipe, 1);
}

TEST(History, KeepsTwoHundredSteps) {
    Plant plant;
    plant.Do("L2,5 L8,5 R5,5 again");
    for (int i = 1; i <= 201; ++i) plant.Do("length=" + GeneralText(i) + " left");
    int steps = 0;
    for (; !plant.history.UndoName().empty(); ++steps) plant.Do("undo");
    EXPECT_EQ(steps, 200);
    EXPECT_EQ(plant.project.Pipes[1].Length, 1);
}

TEST(History, DropsWhatIsBegunAndStartsAnewWithAnotherNetwork) {
    Plant plant;
    plant.Do("L2,5 L8,5 L3,3 undo");
    EXPECT_EQ(plant.editor.state, InsertState::FirstPoint);
    EXPECT_EQ(plant.project.numtubo + plant.project.CurrentPipe, 0);
    plant.history.StartAnew(plant.project, plant.editor);
    EXPECT_EQ(plant.history.UndoName() + plant.history.RedoName(), "");
}

}  // namespace
}  // namespace idrova
