// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/problems.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "support/network_run.h"

namespace idrova {
namespace {

/// Point 1 - pipe 1 - point 2 | component in cell 205 | point 3 - pipe 2 - point 4, where the pipes
/// 3 to point 5 and 4 to point 6 branch off. Pressures are given at 1 and 6, the flow of pipe 3.
NetworkBuilder Branched() {
    NetworkBuilder network = CutPipe(CellKind::Loss);
    network.AddPipe(4, network.AddPoint(8, 9));
    network.AddPipe(4, network.AddPoint(12, 5));
    network.SetPressure(1, 3e5F);
    network.SetPressure(6, 1e5F);
    network.SetFlow(3, 1);
    return network;
}

TEST(Problems, NameEveryPlaceThatKeepsTheRunFromStarting) {
    using Change = std::function<void(NetworkBuilder&)>;
    const std::pair<Change, const char*> cases[] = {
        {[](auto&) {}, ""},
        {[](auto& n) { n->settings.FluidDensity = 0; }, "Select a fluid;"},
        {[](auto& n) { n->Pipes[1].Length = n->Pipes[3].Diameter = 0; },
         "Pipe 1 has no length [pipe 1];Pipe 3 has no diameter [pipe 3];"},
        {[](auto& n) {
             n->settings.SectionType = Section::Rectangular;
             for (int i = 1; i <= 4; ++i) n->Pipes[i].OuterSize = i == 2 ? 0 : .1F;
             n->Pipes[4].Diameter = -1;
         },
         "Pipe 2 has no side b [pipe 2];Pipe 4 has no side a [pipe 4];"},
        {[](auto& n) { n->FlowUnknown[3] = n->PressureUnknown[1] = true; },
         "Point 1 is an open end: give its pressure or the flow of pipe 1 [point 1];"
         "Point 5 is an open end: give its pressure or the flow of pipe 3 [point 5];"},
        {[](auto& n) { n.AddPoint(20, 20); }, "Point 7 has no pipe [point 7];"},
        {[](auto& n) { n->Pipes[1].X1 = kDeleted; },
         "Point 2 has no pipe [point 2];"
         "The component in column 5, row 5 does not stand between two pipes [cell 205];"},
        {[](auto& n) { n->Points[3].Cell = 1; },
         "The component in column 5, row 5 does not stand between two pipes [cell 205];"},
        {[](auto& n) { n.SetPressure(4, 2e5F), n.SetPressure(3, 2e5F); },
         "The pressure of point 3 is given, though it is no open end: make it unknown [point 3];"
         "The pressure of point 4 is given, though it is no open end: make it unknown [point 4];"},
        {[](auto& n) { n.SetFlow(2, 1), n.SetPressure(5, 1e5F); },
         "The flow of pipe 2 is given, though no end of it is open for one: make it or a pressure "
         "unknown [pipe 2];"
         "The flow of pipe 3 is given, though no end of it is open for one: make it or a pressure "
         "unknown [pipe 3];"},
        {[](auto& n) {
             n.SetPressure(4, 1e5F);
             n.SetPressure(5, 1e5F);
             n->PressureUnknown[1] = n->PressureUnknown[6] = true;
         },
         "The flow of pipe 3 does not fit the pressures of its ends: make one of the three unknown "
         "[pipe 3];"},
    };
    const std::map<NoteOn, std::string> places = {
        {NoteOn::Pipe, "pipe"}, {NoteOn::Point, "point"}, {NoteOn::Cell, "cell"}};
    for (const auto& [change, expected] : cases) {
        NetworkBuilder network = Branched();
        change(network);
        const NetworkRun run(network);
        std::string found;
        for (const Note& note : ProblemsOf(network->settings, *run.work)) {
            found += note.text;
            if (note.number != 0) {
                found += " [" + places.at(note.on) + " " + std::to_string(note.number) + "]";
            }
            found += ";";
        }
        EXPECT_EQ(found, expected);
        EXPECT_TRUE(!found.empty() || run.outcome.end != RunEnd::Refused);
    }
}

}  // namespace
}  // namespace idrova
