// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/invariants.h"

#include <gmock/gmock.h>

#include <cmath>
#include <vector>

#include "sample_project.h"

namespace idrova {
namespace {

TEST(Invariants, EveryBreachIsFound) {
    EXPECT_THAT(BrokenInvariants(*NewTestProject()), testing::IsEmpty());
    EXPECT_THAT(BrokenInvariants(*SampleProject()), testing::IsEmpty());
    struct Case {
        void (*spoil)(Project&);
        std::string_view fault;
    };
    const std::vector<Case> cases = {
        {[](Project& p) { p.numtubo = 201; }, "a count is out of range"},
        {[](Project& p) { p.numins = 100; }, "a count is out of range"},
        {[](Project& p) { p.Cells[0].Placed = true; }, "Cells(0): never used"},
        {[](Project& p) { p.Pipes[1].Length = NAN; }, "Pipes(1): finite numbers"},
        {[](Project& p) { p.Pipes[1].FlowFromPoint = 3; }, "Pipes(1): the flow is counted"},
        {[](Project& p) { p.Pipes[3].EndPoint = 1; }, "Pipes(3): deleted as a whole"},
        {[](Project& p) { p.Pipes[4].EndPoint = 6; }, "Pipes(4): ends in live points"},
        {[](Project& p) { p.Pipes[4].X2 += 1; }, "Pipes(4): ends in cell centres"},
        {[](Project& p) { p.Points[2].Cell = 9; }, "Points(2): lies in the centre"},
        {[](Project& p) { p.Cells[9].Placed = true; }, "Cells(9): a component, or crossed"},
        {[](Project& p) { p.Cells[9].Param1 = 3; }, "Cells(9): a component, or crossed"},
        {[](Project& p) { p.Cells[2501].Kind = CellKind::Loss; }, "Cells(2501): within the grid"},
        {[](Project& p) { p.TableRows[2].RowZ2 = NAN; }, "TableRows(2): finite numbers"},
        {[](Project& p) { p.TableRows[2].P1Given = false; }, "TableRows(2): a value that is not"},
    };
    for (const auto& c : cases) {
        auto project = SampleProject();
        c.spoil(*project);
        EXPECT_THAT(BrokenInvariants(*project),
                    testing::ElementsAre(testing::StartsWith(std::string(c.fault))));
    }
}

}  // namespace
}  // namespace idrova
