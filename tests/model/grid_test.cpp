// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/grid.h"

#include <gtest/gtest.h>

#include "sample_project.h"

namespace idrova {
namespace {

TEST(Grid, CellsAndPositionsAgree) {
    const auto project = NewTestProject();
    EXPECT_EQ(CellAt(50, 2, project->GridSize), 100) << "the last column";
    EXPECT_EQ(CellCentre(*project, 1), (ScreenPoint{639, 639}));
    EXPECT_EQ(CellCentre(*project, 50), (ScreenPoint{14261, 639}));
    EXPECT_EQ(CellCentre(*project, 51), (ScreenPoint{639, 917}));
    EXPECT_EQ(CellFromPoint(*project, kDeleted, kDeleted), 0);
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

}  // namespace
}  // namespace idrova
