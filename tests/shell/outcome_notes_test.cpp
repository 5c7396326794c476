// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/outcome_notes.h"

#include <gtest/gtest.h>

namespace idrova {
namespace {

TEST(OutcomeNotes, WordsAndGroundTellWhetherToTrust) {
    const Note note{"Mind the step"};
    const Note remark{.text = "A fine step", .weight = NoteWeight::Remark};
    using enum OutcomeGround;
    const std::vector<Note> both{note, note};
    const struct {
        Outcome outcome;
        const char *text = "", *effort = "";
        OutcomeGround ground = Plain;
    } cases[] = {
        // clang-format off
        {{.end = RunEnd::Settled, .passes = {12, 3}, .notes = {remark}, .seconds = .00144}, "Computed", "12 + 3 passes, 1.4 ms", Plain},
        {{.end = RunEnd::Settled, .passes = {1, 0}, .notes = {note}}, "Computed, 1 note", "1 pass, 0 ms", Noted},
        {{.end = RunEnd::Settled, .notes = both}, "Computed, 2 notes", "", Noted},
        {{.end = RunEnd::Unsettled, .worstResidual = .03, .worstPipe = 12, .notes = {note}}, "Not settled: pipe 12, 3 %", "", Faulty},
        {{.end = RunEnd::Unsettled, .worstResidual = 4e-4, .worstPipe = 1}, "Not settled: pipe 1, 0.04 %", "", Faulty},
        {{.end = RunEnd::Unsettled, .notes = {note}}, "Not settled: Mind the step", "", Faulty},
        {{.end = RunEnd::Singular}, "The equations have no single solution", "", Faulty},
        {{.end = RunEnd::Refused}, "Not computed", "", Faulty},
        {{.end = RunEnd::Empty}, "Nothing to compute", "", Plain}};
    // clang-format on
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
