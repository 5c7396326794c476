// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/limit_notes.h"

#include <gtest/gtest.h>

#include <memory>

#include "support/network_run.h"

namespace idrova {
namespace {

/// Two pipes of 2 kg/s in 50 mm, 1.0186 m/s, the second one counted backwards.
RunRecord TwoPipes() {
    RunRecord record{{}, {.end = RunEnd::Settled}, {}, WorkNetwork()};
    record.settings.FluidDensity = 1000;
    record.settings.FluidViscosity = 1e-3;
    record.outcome.notes = {{"first"}, {"last", NoteOn::Network, 0, NoteWeight::Remark}};
    WorkNetwork& work = *record.results;
    work.WorkPipeCount = 2;
    work.WorkPipes[1] = {2, 100, .05F, 1, 2, 100, 0, 0, 0, 0, 10, .1F, 1};
    work.WorkPipes[2] = {-2, 50, .05F, 4, 3, 100, 0, 0, 0, 10, 0, .1F, 3};
    work.WorkPointCount = 4;
    work.WorkPoints = {
        {{}, {300000, 1, 0, 3}, {100000, 1, 0, 7}, {400000, 1, 0, 7}, {500000, 1, 0, 9}}};
    return record;
}

const Limits kLimits{1, 2000, 1.5 * kPascalPerBar, 4.5 * kPascalPerBar};

TEST(LimitNotes, NameEveryPipeAndPointBeyond) {
    const auto record = std::make_unique<RunRecord>(TwoPipes());
    std::string text;
    for (const Note& note : HeldAgainst(kLimits, *record).notes) {
        text += note.text + "#" + std::to_string(note.number) + "\n";
    }
    EXPECT_EQ(text,
              "first#0\n"
              "Velocity in pipe 1: 1.02 m/s, above the limit of 1 m/s#1\n"
              "Velocity in pipe 2: 1.02 m/s, above the limit of 1 m/s#2\n"
              "Losses in pipe 2: 3962 Pa/m, above the limit of 2000 Pa/m#2\n"
              "Pressure at point 2: 0.9869 bar, below the limit of 1.5 bar#2\n"
              "Pressure at point 4: 4.9346 bar, above the limit of 4.5 bar#4\n"
              "last#0\n");
    EXPECT_EQ(HeldAgainst({}, *record).notes, record->outcome.notes);
}

TEST(LimitNotes, MarkTheCellsOfTables) {
    const auto record = std::make_unique<RunRecord>(TwoPipes());
    ResultTable pipes = PipeTable(record->settings, *record->results);
    ResultTable points = PointTable(record->settings, *record->results, Unit::Bar);
    for (ResultTable* table : {&pipes, &points}) MarkBeyond(kLimits, *table);
    using Columns = std::vector<std::size_t>;
    EXPECT_EQ(pipes.rows[0].beyond, (Columns{6}));
    EXPECT_EQ(pipes.rows[1].beyond, (Columns{6, 9}));
    EXPECT_EQ(points.rows[0].beyond, Columns{});
    EXPECT_EQ(points.rows[1].beyond, (Columns{1, 2}));
}

}  // namespace
}  // namespace idrova
