// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/problem_list.h"

#include <gtest/gtest.h>

#include "shell/table_results.h"
#include "support/networks.h"

namespace idrova {
namespace {

/// The caption and the rows or elements of the notes.
std::string Shown(Project& project, const RunRecord* last, const Limits& limits = {}) {
    TableTexts texts;
    FillTable(project, texts);
    const ProblemView view = ShowProblems(project, texts, last, limits);
    std::string text = view.caption;
    for (const Note& note : view.notes) {
        text += (note.on == NoteOn::Row ? "; row " : "; ") + std::to_string(note.number);
    }
    return text;
}

TEST(ProblemList, ShowsTheRunWhileItIsCurrentElseWhatIsMissing) {
    NetworkBuilder network(3);
    network.AddPipe(1, 2);
    network.AddPipe(2, 3, 0);
    network.SetPressure(1, 3e5F);
    network.SetPressure(3, 2e5F);
    network->TableRows[2] = {1, 3e5F, 2, 0, .1F, 100, 0, 0, 0, true};
    network->TableRows[3] = {2, 0, 3, 0, .1F, 0};
    EXPECT_EQ(Shown(*network, nullptr), "Cannot be computed yet; 2");
    RunRecord last{InputsOf(*network), {}, {}};
    last.outcome = {.end = RunEnd::Settled, .notes = {{"x", NoteOn::Point, 3}}};
    EXPECT_EQ(Shown(*network, &last), "Computed, 1 note; 3");
    network->Pipes[2].Length = 10;
    EXPECT_EQ(Shown(*network, &last), "Changed since the computation");

    network->settings.Mode = WorkMode::Table;
    EXPECT_EQ(Shown(*network, &last), "Cannot be computed yet; row 2; row 2")
        << "no length, and an open end";
    last.inputs = InputsOf(*network);
    EXPECT_EQ(Shown(*network, &last), "Computed, 1 note; row 2");
    CopyNetwork(*network, last.results.emplace());
    const Limits limits{.highestPressure = 2.5e5};
    EXPECT_EQ(Shown(*network, &last, limits), "Computed, 2 notes; row 2; row 1");
    const RowResults rows = ShowRowResults(*network, &last, limits);
    EXPECT_TRUE(rows.IsBeyond(2, kTableColumns + 3) && !rows.IsBeyond(3, kTableColumns + 4));
    last.results.reset();
    network->TableRows[3].EndPoint = 7;
    network->TableRows[6] = network->TableRows[3];
    EXPECT_EQ(Shown(*network, &last), "Cannot be computed yet; row 2; row 5")
        << "no such point, and left out below a gap";
    network->settings.Mode = WorkMode::SinglePipe;
    EXPECT_EQ(Shown(*network, nullptr), "Not yet computed");
}

}  // namespace
}  // namespace idrova
