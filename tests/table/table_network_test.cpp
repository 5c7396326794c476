// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_network.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "support/network_run.h"
#include "table/messages.h"
#include "table/table_edit.h"

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

    bool Convert() { return !TableToNetwork(*project, texts, *work); }

    std::string Notes() const { return Lines(TableNotes(*project, texts)); }
    static std::string Lines(const std::vector<Note>& notes) {
        std::string lines;
        for (const Note& note : notes) {
            EXPECT_EQ(note.on, NoteOn::Row);
            lines += std::to_string(note.number) + " " + note.text + "\n";
        }
        return lines;
    }

    std::unique_ptr<Project> project = std::make_unique<Project>();
    std::unique_ptr<WorkNetwork> work = std::make_unique<WorkNetwork>();
    TableTexts texts;
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
    const std::string gap = "The point numbers must run from 1 without gaps: ";
    struct Case {
        std::vector<TableRowRec> rows;
        std::string box, notes;
    };
    const std::vector<Case> cases = {
        {{{1, kBar, 2}, {2, 0, 3}, {1, 1.5F * kBar, 3}},
         std::string(kPressuresDiffer.text),
         "3 Rows 1, 3 give point 1 different pressures\n"},
        {{{1, 0, 2, kBar}, {3, kBar, 2, 0}, {3, 0, 2, kBar}},
         std::string(kPressuresDiffer.text),
         "3 Rows 1 to 3 give point 2 different pressures\n"
         "3 Rows 2, 3 give point 3 different pressures\n"},
        {{{1, 0, 2}, {2, 0, 4}}, gap + "3 is missing", "2 Of the point numbers 3 is missing\n"},
        {{{2, 0, 8}},
         gap + "1, 3 to 7 are missing",
         "1 Of the point numbers 1, 3 to 7 are missing\n"},
        {{{1, 0, -2}},
         gap + "-2 is not between 1 and 400",
         "1 Of the point numbers -2 is not between 1 and 400\n"},
        {{{1, 0, 2}, {401, 0, 2}},
         gap + "401 is not between 1 and 400",
         "2 Of the point numbers 401 is not between 1 and 400\n"},
    };
    for (const auto& [rows, box, notes] : cases) {
        Load(rows);
        work->WorkPipeCount = 7;
        const auto refusal = TableToNetwork(*project, texts, *work);
        ASSERT_TRUE(refusal);
        EXPECT_EQ(refusal->box, MessageBox(box, "Coherence check"));
        EXPECT_EQ(Lines(refusal->notes), notes);
        EXPECT_EQ(work->WorkPipeCount, 7);
    }
}

TEST_F(TableNetwork, NotesTellWhatIsNotComputedOrReadAsItStands) {
    Load({{1, kBar, 2, 2 * kBar}, {2, 0, 3}, {3, 0, 4}});
    EXPECT_EQ(Notes(), "2 Rows 1, 2 give point 2 different pressures: that of row 2 counts\n");
    Load({{1, kBar, 2}, {2, 0, 3}, {.EndPoint = 3}});
    EXPECT_EQ(Notes(), "3 Row 3 lacks a point: it is not computed\n");
    ChangeCell(*project, texts, 8, 7, "x");
    EXPECT_EQ(Notes(), "7 Row 7 stands below row 3, which lacks a point: it is not computed\n");
    Load({{1, 0, 2}});
    ChangeCell(*project, texts, 2, 2, "2.5bar");
    ChangeCell(*project, texts, 2, 3, "2nd");
    ChangeCell(*project, texts, 2, 5, "DN50");
    ChangeCell(*project, texts, 2, 8, "x");
    project->settings.PressureUnitFactor = kPascalPerMilliBar;
    EXPECT_EQ(Notes(),
              "1 Row 1: P1 \"2.5bar\" is read as 2500, a \"2nd\" is read as 2, "
              "diameter \"DN50\" is no size, flow rate \"x\" is read as 0\n");
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
