// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/project.h"

#include <gmock/gmock.h>

#include <cmath>
#include <vector>

#include "model/invariants.h"
#include "model/pipe_sizes.h"
#include "model/version.h"
#include "support/sample_project.h"

namespace idrova {
namespace {

TEST(Project, StartsEmptyAndResetLeavesAllButTheNetwork) {
    auto project = SampleProject();
    project->settings.Mode = WorkMode::Table;
    InitialiseProject(*project);
    EXPECT_EQ(WindowTitle(project->ProjectName), "Idrova 2.6.3 - [New project]");
    EXPECT_EQ(*project, *NewTestProject());
    EXPECT_TRUE(project->FlowUnknown[kMaxPipes] && project->PressureUnknown[kMaxPoints]);

    project = SampleProject();
    auto expected = SampleProject();
    project->CurrentPipe = 2;
    ResetProject(*project);
    expected->numtubo = expected->npres = 0;
    for (PointRec& point : expected->Points) point.Pressure = 0;
    expected->PressureUnknown.fill(true);
    expected->Cells.fill({});
    expected->CellIsNode.fill(false);
    EXPECT_EQ(*project, *expected);
}

TEST(Invariants, EveryBreachIsFound) {
    EXPECT_THAT(BrokenInvariants(*SampleProject()), testing::IsEmpty());
    const std::vector<std::pair<void (*)(Project&), std::string>> cases = {
        {[](Project& p) { p.numtubo = 201; }, "the counts must be"},
        {[](Project& p) { p.Pipes[0].Length = 1; }, "pipe 0 must stay unused"},
        {[](Project& p) { p.Cells[0].Placed = true; }, "cell 0 must stay unused"},
        {[](Project& p) { p.Pipes[1].Length = NAN; }, "pipe 1 must have finite numbers"},
        {[](Project& p) { p.Pipes[1].FlowFromPoint = 3; }, "pipe 1 must count its flow"},
        {[](Project& p) { p.Pipes[3].EndPoint = 1; }, "pipe 3 must be deleted as a whole"},
        {[](Project& p) { p.Pipes[4].EndPoint = 6; }, "pipe 4 must end in live points"},
        {[](Project& p) { p.Points[2].Cell = 9; }, "point 2 must lie in the centre"},
        {[](Project& p) { p.CellIsNode[50] = false; }, "point 2 must mark its cell"},
        {[](Project& p) { p.Cells[9].Placed = true; }, "cell 9 must hold a component"},
        {[](Project& p) { p.Cells[9].CrossingPipe = 3; }, "cell 9 must hold a component"},
        {[](Project& p) { p.Cells[2501].Kind = CellKind::Loss; }, "cell 2501 must lie within"},
        {[](Project& p) { p.TableRows[kTableSlots].RowZ2 = NAN; }, "table row 200 must have"},
        {[](Project& p) { p.TableRows[2].P1Given = false; }, "table row 2 must have its values"},
    };
    for (const auto& [spoil, fault] : cases) {
        auto project = SampleProject();
        spoil(*project);
        EXPECT_THAT(BrokenInvariants(*project), testing::ElementsAre(testing::StartsWith(fault)));
    }
}

TEST(Grid, CellsAndPositionsAgree) {
    const auto project = NewTestProject();
    EXPECT_EQ(CellCentre(*project, 50), (ScreenPoint{14261, 639})) << "the last column";
    EXPECT_EQ(CellCentre(*project, 51), (ScreenPoint{639, 917}));
    EXPECT_EQ(CellFromPoint(*project, 639, 361), 0) << "above the first row";
    project->GridSize = kMaxGridSize;
    for (const auto& [zoom, size] : {std::pair(12288.0 / 13260, 278), std::pair(277.5 / 300, 276),
                                     std::pair(1.0, 300), std::pair(0.1, 30)}) {
        EXPECT_DOUBLE_EQ(SetGridScale(project->Grid, zoom), size / 300.0);
        EXPECT_EQ(project->Grid, (GridGeometry{500, 500, size, size}));
        for (int cell = 1; cell <= project->CellCount(); ++cell) {
            const ScreenPoint centre = CellCentre(*project, cell);
            ASSERT_EQ(CellFromPoint(*project, centre.x, centre.y), cell);
        }
    }
}

TEST(PipeSizes, ADiameterFromTheListIsFoundAgain) {
    for (int size = 1; size <= kNominalSizes; ++size) {
        const double inside = InnerDiameters[static_cast<std::size_t>(size)];
        EXPECT_EQ(NominalSizeOf(static_cast<float>(inside / 1000)), size);
        EXPECT_EQ(NominalSizeOf(static_cast<float>(inside) / 1000.0F), size);
    }
    for (const float other : {0.0F, .0278F, -.0279F}) EXPECT_EQ(NominalSizeOf(other), 0) << other;
}

}  // namespace
}  // namespace idrova
