// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_network.h"

#include <cmath>

#include "support/network_run.h"
#include "table/messages.h"
#include "table_script.h"

namespace idrova {
namespace {

constexpr float kBar = kPascalPerBar;

class TableNetwork : public TableScript {
  protected:
    void Load(const std::vector<TableRowRec>& rows) {
        Clear();
        std::ranges::copy(rows, project->TableRows.begin() + kFirstTableRow);
        FillTable(*project, texts);
    }

    bool Convert() { return !TableToNetwork(*project, texts, *work); }

    static std::string Lines(const std::vector<Note>& notes) {
        std::string lines;
        for (const Note& note : notes) {
            EXPECT_EQ(note.on, NoteOn::Row);
            lines += std::to_string(note.number) + " " + note.text + ";";
        }
        return lines;
    }

    std::unique_ptr<WorkNetwork> work = std::make_unique<WorkNetwork>();
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

TEST_F(TableNetwork, RefusedTablesNameThePlaceAndLeaveTheWorkingNetwork) {
    for (const auto& table : Cases(R"(
        2.1<1 1 2/2  3/1 1.5 3 # 3 Rows 1, 3 give point 1 different pressures;
        2.1<1  2 1/3 1 2 2/3  2 1 # 3 Rows 1 to 3 give point 2 different pressures;
        2.1<1  2/2  4 # 3 is missing # 2
        2.1<2  8 # 1, 3 to 7 are missing # 1
        2.1<1  -2 # -2 is not between 1 and 400 # 1
        2.1<1  2/401  2 # 401 is not between 1 and 400 # 2)")) {
        Clear();
        Do(table[0]);
        work->WorkPipeCount = 7;
        const auto refusal = TableToNetwork(*project, texts, *work);
        ASSERT_TRUE(refusal) << table[0];
        const bool gap = table.size() == 3;
        EXPECT_EQ(refusal->box, gap ? PointsLeaveGap(table[1]) : MessageBox(kPressuresDiffer));
        EXPECT_EQ(Lines(refusal->notes),
                  gap ? table[2] + " Of the point numbers " + table[1] + ";" : table[1]);
        EXPECT_EQ(work->WorkPipeCount, 7);
    }
}

TEST_F(TableNetwork, NotesTellWhatIsNotComputedOrReadAsItStands) {
    for (const auto& table : Cases(R"(
        2.1<1 1 2 2/2 3 3/3  4 # 2 Rows 1, 2 give point 2 different pressures: that of row 2 counts;
        2.1<1 1 2/2  3/  3 # 3 Row 3 lacks a point: it is not computed;
        2.1<1 1 2/2  3/  3;8.7=x # 7 Row 7 stands below row 3, which lacks a point: it is not computed;
        2.1<1 1 2/2  3;8.7=x;9.1=1 # 7 Rows 7, 8 stand below the empty row 3: they are not computed; # close up
        2.1<1 2.5bar 2nd;2.5=DN 50 # 1 Row 1: P1 "2.5bar" is read as 2500, a "2nd" is read as 2, diameter "DN 50" is no size;
        2.1<1  2;2.8=x;9.7= # 1 Row 1: flow rate "x" is read as 0;)")) {
        Clear();
        Do(table[0]);
        project->settings.PressureUnitFactor = kPascalPerMilliBar;
        EXPECT_EQ(Lines(TableNotes(*project, texts)), table[1]);
        EXPECT_EQ(NoteOfGap(*project, texts).canCloseUp, table.size() == 3);
    }
}

TEST_F(TableNetwork, FullAndEmptyTables) {
    ASSERT_TRUE(Convert());
    EXPECT_EQ(work->WorkPipeCount, 0);
    for (int row = kFirstTableRow; row <= kLastTableRow + 1; ++row) {
        Row(row) = {.StartPoint = ToInt16(row - 1), .EndPoint = ToInt16(row)};
    }
    ASSERT_TRUE(Convert());
    EXPECT_EQ(work->WorkPipeCount * 1000 + work->WorkPointCount, 99'100);
    EXPECT_EQ(Lines(TableNotes(*project, texts)), "");
}

}  // namespace
}  // namespace idrova
