// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/editor_state.h"

#include <gtest/gtest.h>

#include "plant.h"

namespace idrova {
namespace {

constexpr struct {
    const char* script;
    InsertState state;
    const char* hint;
    bool frames;
} kCases[] = {
    {"L2,5", InsertState::EndPoint, "end point of the pipe", false},
    {"L2,5 L8,5", InsertState::FirstPoint, "first point of a pipe", false},
    {"L2,5 R3,3", InsertState::FirstPoint, "first point of a pipe", true},
    {"L2,5 labels escape", InsertState::FirstPoint, "first point of a pipe", true},
    {"L2,5 L8,5 R5,5", InsertState::FirstPoint, "first point of a pipe", true},
    {"pump", InsertState::Pump, "insert selected component", true},
    {"loss", InsertState::Loss, "insert selected component", true},
    {"loss L3,3", InsertState::FirstPoint, "first point of a pipe", false},
    {"pump R3,3", InsertState::FirstPoint, "first point of a pipe", true},
    {"L2,5 pump", InsertState::Pump, "insert selected component", false},
    {"delete", InsertState::FirstPoint, "first point of a pipe", true},
};

TEST(EditorState, FollowsTheClicksThatAlsoHideTheDataLabels) {
    for (const auto& c : kCases) {
        Plant plant;
        plant.editor.DataShown = true;
        plant.Do(c.script);
        EXPECT_EQ(plant.editor.state, c.state) << c.script;
        EXPECT_EQ(HintLines(plant.editor)[1], c.hint) << c.script;
        EXPECT_EQ(plant.editor.framesEnabled, c.frames) << c.script;
        EXPECT_FALSE(plant.editor.DataShown) << c.script;
        Plant other;
        other.Do("show=flows").Do(c.script);
        EXPECT_TRUE(other.editor.DataShown) << c.script << " takes away pressures only";
    }
}

}  // namespace
}  // namespace idrova
