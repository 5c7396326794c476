// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/shell_state.h"

#include <gtest/gtest.h>

#include <memory>

#include "shell/messages.h"
#include "shell/shell_commands.h"
#include "support/scripted_boxes.h"

namespace idrova {
namespace {

TEST(Modes, EachModeHasItsWindowAndItsTools) {
    struct Case {
        WorkMode mode;
        std::string_view window;
        bool drawingTools, calculate, hints;
    };
    for (const Case& expected : {Case{WorkMode::Graphic, "FrmCel", true, true, true},
                                 Case{WorkMode::Table, "FrmTable", false, true, false},
                                 Case{WorkMode::SinglePipe, "FrmSin", false, false, false}}) {
        const auto project = std::make_unique<Project>();
        ShellState shell{.HintsShown = !expected.hints};
        project->numtubo = 7;
        EnterMode(expected.mode, *project, shell);
        EXPECT_EQ(project->Mode, expected.mode);
        EXPECT_EQ(shell.HintsShown, expected.hints) << expected.window;
        EXPECT_EQ(project->numtubo, 7);
        const ModeView view = ViewOf(project->Mode);
        EXPECT_EQ(view.window, expected.window);
        EXPECT_EQ(view.drawingTools, expected.drawingTools) << expected.window;
        EXPECT_EQ(view.calculate, expected.calculate) << expected.window;
    }
}

TEST(Exit, OnlyOkLeaves) {
    ScriptedBoxes boxes;
    boxes.Expect(kExitQuestion, Answer::Cancel).Expect(kExitQuestion, Answer::Ok);
    EXPECT_FALSE(ConfirmExit(boxes));
    EXPECT_TRUE(ConfirmExit(boxes));
}

}  // namespace
}  // namespace idrova
