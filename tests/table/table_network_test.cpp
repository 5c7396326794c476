// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_network.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "support/network_run.h"
#include "support/scripted_boxes.h"
#include "table/messages.h"

namespace idrova {
namespace {

constexpr float kBar = kPascalPerBar;

class TableNetwork : public testing::Test {
  protected:
    void Load(const std::vector<TableRowRec>& rows) {
        project->TableRows.fill({});
        texts = TableTexts();
        std::ranges::copy(rows, project->TableRows.begin() + kFirstTableRow);
        FillTable(*project, texts);
    }

    bool Convert() { return TableToNetwork(*project, texts, *work, boxes); }

    std::unique_ptr<Project> project = std::make_unique<Project>();
    std::unique_ptr<WorkNetwork> work = std::make_unique<WorkNetwork>();
    TableTexts texts;
    ScriptedBoxes boxes;
};

TEST_F(TableNetwork, RowsBecomePipesAndPoints) {
    Load({{1, 2 * kBar, 2, 0, .0279F, 10, 0, 2.5F, 3.5F},
          {2, 0, 3, 0, .05F, 20, 0, 2.6F, -4, false, true, true},
          {4, 0, 0, 0, .05F, 20},
          {3, 0, 5, 0, .05F, 20}});
    ASSERT_TRUE(Convert());

    EXPECT_EQ(work->WorkPipeCount, 2) << "the list ends at the row that misses a point";
    EXPECT_EQ(work->WorkPointCount, 3);
    const PipeRec second{0, 20, .05F, 2, 3, 10, 0, 0, 0, 3, -4, 0, 2};
    EXPECT_EQ(work->WorkPipes[2], second);
    EXPECT_EQ(work->WorkPipes[1].Z1, 2) << "halves go to the even neighbour";
    EXPECT_EQ(work->WorkPipes[1].Z2, 4);
    EXPECT_EQ(work->WorkPoints[1], (PointRec{2 * kBar, 10}));
    EXPECT_TRUE(work->WorkFlowUnknown[1] && work->WorkPressureUnknown[2]);
    EXPECT_FALSE(work->WorkFlowUnknown[2] || work->WorkPressureUnknown[1] ||
                 work->WorkPressureUnknown[3])
        << "a typed zero is a given value";

    // Ends of different kinds are not compared; in one row the end is looked at after the start.
    Load({{1, kBar, 2, 2 * kBar}, {2, kBar, 3, 4 * kBar}, {3, 3 * kBar, 3, 4 * kBar}});
    ASSERT_TRUE(Convert());
    EXPECT_EQ(work->WorkPoints[2].Pressure, kBar);
    EXPECT_EQ(work->WorkPoints[3].Pressure, 4 * kBar);
}

TEST_F(TableNetwork, ComputesAsTheSamePlantDrawn) {
    NetworkBuilder drawn = LoopedNetwork(4, 4);
    std::vector<TableRowRec> rows;
    for (int i = 1; i <= drawn->numtubo; ++i) {
        const PipeRec& pipe = drawn->Pipes[i];
        const PointRec& start = drawn->Points[pipe.StartPoint];
        const PointRec& end = drawn->Points[pipe.EndPoint];
        rows.push_back({pipe.StartPoint, start.Pressure, pipe.EndPoint, end.Pressure, pipe.Diameter,
                        pipe.Length, pipe.FlowRate, 0, 0, !drawn->PressureUnknown[pipe.StartPoint],
                        !drawn->PressureUnknown[pipe.EndPoint], !drawn->FlowUnknown[i]});
    }
    project->settings = drawn->settings;
    project->settings.Mode = WorkMode::Table;
    Load(rows);
    ASSERT_TRUE(Convert());
    EXPECT_EQ(ComputeNetwork(project->settings, *work, {.seed = 2}).end, RunEnd::Settled);
    const NetworkRun graphic(drawn);
    for (int i = 1; i <= drawn->numtubo; ++i) {
        EXPECT_NEAR(work->WorkPipes[i].FlowRate, graphic.Flow(i), 1e-6 * std::abs(graphic.Flow(i)))
            << i;
    }
    for (int i = 1; i <= drawn->npres; ++i) {
        EXPECT_NEAR(work->WorkPoints[i].Pressure, graphic.Pressure(i), 0.5) << i;
    }
}

TEST_F(TableNetwork, RefusedTablesLeaveTheWorkingNetwork) {
    const std::vector<std::pair<std::vector<TableRowRec>, MessageBox>> cases = {
        {{{1, kBar, 2}, {1, 1.5F * kBar, 3}}, kPressuresDiffer},
        {{{1, 0, 2, kBar}, {3, 0, 2, 0}}, kPressuresDiffer},
        {{{1, 0, 2}, {2, 0, 4}}, kPointsLeaveGap},
        {{{1, 0, -2}}, kPointsLeaveGap},
        {{{1, 0, 2}, {401, 0, 32767}}, kPointsLeaveGap},
    };
    for (const auto& [rows, message] : cases) {
        Load(rows);
        work->WorkPipeCount = 7;
        boxes.Expect(message);
        EXPECT_FALSE(Convert());
        EXPECT_EQ(work->WorkPipeCount, 7);
    }
}

TEST_F(TableNetwork, FullAndEmptyTables) {
    ASSERT_TRUE(Convert());
    EXPECT_EQ(work->WorkPipeCount, 0);
    for (std::int16_t row = kFirstTableRow; row <= kLastTableRow + 1; ++row) {
        project->TableRows[row] = {.StartPoint = static_cast<std::int16_t>(row - 1),
                                   .EndPoint = row};
    }
    ASSERT_TRUE(Convert());
    EXPECT_EQ(work->WorkPipeCount * 1000 + work->WorkPointCount, 99'100);
}

}  // namespace
}  // namespace idrova
