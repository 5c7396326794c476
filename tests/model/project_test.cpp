// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/project.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "model/pipe_sizes.h"
#include "sample_project.h"

namespace idrova {
namespace {

TEST(Project, StartsEmptyWithEverythingUnknown) {
    auto project = SampleProject();
    project->ProjectName.clear();
    project->Mode = WorkMode::Table;
    InitialiseProject(*project);
    EXPECT_EQ(WindowTitle(project->ProjectName), "Idrova 2.6.3 - [New project]");
    EXPECT_EQ(*project, *NewTestProject());
    EXPECT_TRUE(project->FlowUnknown[kMaxPipes] && project->PressureUnknown[kMaxPoints]);
    EXPECT_EQ(static_cast<const Settings&>(*project), Settings{});
}

TEST(Project, ResetEmptiesTheNetworkAndLeavesTheRest) {
    auto project = SampleProject();
    project->CurrentPipe = 2;
    std::string steps;
    HandOvers handOvers;
    handOvers.ClearDrawing = [&] { steps += project->numtubo == 4 ? "clear " : "too late "; };
    handOvers.RereadComponents = [&] { steps += project->numtubo == 0 ? "reread" : "too early"; };
    ResetProject(*project, handOvers);
    EXPECT_EQ(steps, "clear reread");

    auto expected = SampleProject();
    expected->numtubo = expected->npres = expected->CurrentPipe = 0;
    for (PointRec& point : expected->Points) point.Pressure = 0;
    expected->PressureUnknown.fill(true);
    expected->Cells.fill({});
    expected->CellIsNode.fill(false);
    EXPECT_EQ(*project, *expected);
}

TEST(Project, CrossedCellsFollowThePipes) {
    auto project = SampleProject();
    auto crossedBy = [&](float pipe) {
        return std::count_if(project->Cells.begin(), project->Cells.end(), [&](const CellRec& c) {
            return c.Kind == CellKind::Crossed && c.Param1 == pipe;
        });
    };
    EXPECT_EQ(crossedBy(1), 49) << "fifty less the pump's cell";
    EXPECT_EQ(crossedBy(2), 0) << "one end on pipe 1, the other on the valve";
    EXPECT_EQ(crossedBy(4), 48);

    std::swap(project->Pipes[1].X1, project->Pipes[1].X2);
    project->Pipes[2].FlowFromPoint = 77;
    project->Pipes[4].X1 = kDeleted;
    RebuildPipeCells(*project);
    EXPECT_EQ(crossedBy(1), 49) << "drawn from right to left";
    EXPECT_EQ(crossedBy(4), 0);
    EXPECT_EQ(project->Cells[100].Kind, CellKind::Loss);
    EXPECT_EQ(project->Pipes[2].FlowFromPoint, 2);
}

TEST(PipeSizes, ADiameterFromTheListIsFoundAgain) {
    for (int size = 1; size <= kNominalSizes; ++size) {
        const double inside = InnerDiameters[static_cast<std::size_t>(size)];
        EXPECT_EQ(NominalSizeOf(static_cast<float>(inside / 1000)), size);
        EXPECT_EQ(NominalSizeOf(static_cast<float>(inside) / 1000.0F), size);
    }
    EXPECT_EQ(NominalSizeNames[static_cast<std::size_t>(NominalSizeOf(.0279F))], "1");
    for (const float other : {0.0F, .0278F, .028F, -.0279F, 27.9F}) {
        EXPECT_EQ(NominalSizeOf(other), 0) << other;
    }
}

}  // namespace
}  // namespace idrova
