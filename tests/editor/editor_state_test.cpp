// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editor_state.h"

#include <gtest/gtest.h>

#include "plant.h"

namespace idrova {
namespace {

TEST(EditorState, FollowsTheClicks) {
    const struct {
        const char* script;
        InsertState state;
        const char* hint;
        bool frames;
    } cases[] = {
        {"", InsertState::FirstPoint, "first point of a pipe", true},
        {"L2,5", InsertState::EndPoint, "end point of the pipe", false},
        {"L2,5 L8,5", InsertState::FirstPoint, "first point of a pipe", false},
        {"L2,5 L2,5", InsertState::FirstPoint, "first point of a pipe", false},
        {"L2,5 R3,3", InsertState::FirstPoint, "first point of a pipe", true},
        {"L2,5 L8,5 R5,5", InsertState::FirstPoint, "first point of a pipe", true},
        {"pump", InsertState::Pump, "insert selected component", true},
        {"loss", InsertState::Loss, "insert selected component", true},
        {"loss L3,3", InsertState::FirstPoint, "first point of a pipe", false},
        {"L2,5 L8,5 R5,5 pump R3,3", InsertState::FirstPoint, "first point of a pipe", true},
        {"L2,5 pump", InsertState::Pump, "insert selected component", false},
    };
    for (const auto& c : cases) {
        Plant plant;
        plant.Do(c.script);
        EXPECT_EQ(plant.editor.state, c.state) << c.script;
        EXPECT_EQ(HintLines(plant.editor)[1], c.hint) << c.script;
        EXPECT_EQ(plant.editor.framesEnabled, c.frames) << c.script;
    }
}

TEST(EditorState, ANewNetworkStartsAnew) {
    Plant plant;
    plant.Do("L2,5 L8,5 R5,5 L3,3");
    plant.editor.DataShown = true;
    plant.editor.ScrY = 9;
    RedrawProject(plant.project, plant.editor);
    EXPECT_EQ(plant.editor.state, InsertState::FirstPoint);
    EXPECT_EQ(plant.editor.firstCell, 0);
    EXPECT_EQ(plant.editor.ScrY, 1);
    EXPECT_FALSE(plant.editor.DataShown);
    EXPECT_FALSE(plant.editor.pipeSelected);
    EXPECT_EQ(plant.Network(), "1:1(2,5)-2(8,5)");
}

}  // namespace
}  // namespace idrova
