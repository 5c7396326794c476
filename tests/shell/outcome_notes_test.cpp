// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/outcome_notes.h"

#include <gtest/gtest.h>

namespace idrova {
namespace {

TEST(OutcomeNotes, WordsAndGroundTellWhetherToTrust) {
    const Note note{"Mind the step"};
    const Note remark{.text = "A fine step", .weight = NoteWeight::Remark};
    const struct {
        Outcome outcome;
        const char *text = "", *effort = "";
        OutcomeGround ground = OutcomeGround::Plain;
    } cases[] = {
        {{.end = RunEnd::Settled, .passes = {12, 3}, .notes = {remark}, .seconds = .00144},
         "Computed",
         "12 + 3 passes, 1.4 ms",
         OutcomeGround::Plain},
        {{.end = RunEnd::Settled, .passes = {1, 0}, .notes = {note}},
         "Computed, 1 note",
         "1 pass, 0 ms",
         OutcomeGround::Noted},
        {{.end = RunEnd::Settled, .notes = {note, note}},
         "Computed, 2 notes",
         "",
         OutcomeGround::Noted},
        {{.end = RunEnd::Unsettled, .worstResidual = .03, .worstPipe = 12, .notes = {note}},
         "Not settled: pipe 12, 3 %",
         "",
         OutcomeGround::Faulty},
        {{.end = RunEnd::Unsettled, .worstResidual = 4e-4, .worstPipe = 1},
         "Not settled: pipe 1, 0.04 %",
         "",
         OutcomeGround::Faulty},
        {{.end = RunEnd::Singular},
         "The equations have no single solution",
         "",
         OutcomeGround::Faulty},
        {{.end = RunEnd::Refused}, "Not computed", "", OutcomeGround::Faulty},
        {{.end = RunEnd::Empty}, "Nothing to compute", "", OutcomeGround::Plain},
    };
    for (const auto& c : cases) {
        const OutcomeView view = ShowOutcome(c.outcome, ResultAge::Current);
        EXPECT_EQ(view.text, c.text);
        EXPECT_EQ(view.ground, c.ground) << c.text;
        EXPECT_EQ(EffortText(c.outcome), c.effort);
        EXPECT_TRUE(view.tip.starts_with(c.effort));
        const OutcomeView old = ShowOutcome(c.outcome, ResultAge::OutOfDate);
        EXPECT_EQ(old.text, "Changed since the computation");
        EXPECT_EQ(old.ground, OutcomeGround::Old);
        EXPECT_TRUE(old.tip.starts_with(c.text));
    }
}

}  // namespace
}  // namespace idrova
