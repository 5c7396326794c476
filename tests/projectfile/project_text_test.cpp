// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "projectfile/project_file.h"
#include "support/sample_project.h"

namespace idrova {
namespace {

std::unique_ptr<Project> Read(const std::string& text) {
    auto project = NewTestProject();
    project->ProjectDescription = "typed";
    const Status read = ReadProjectText(text, *project);
    EXPECT_TRUE(read) << read.Error();
    return project;
}

TEST(ProjectText, IsWrittenByteForByteAndReadIntoTheSameProject) {
    auto project = SampleProject();
    EXPECT_EQ(ProjectFileText(*project), kSampleText);
    project->Pipes[4].Diameter = 12345680;  // seven digits are written
    EXPECT_EQ(*Read(std::string(kSampleText)), *project);
}

TEST(ProjectText, NothingIsLeftOfTheFormerNetwork) {
    const auto empty = NewTestProject();
    auto project = SampleProject();
    project->CurrentPipe = 4;
    project->TableRows[100].EndPressure = 9;
    ASSERT_TRUE(ReadProjectText(ProjectFileText(*empty), *project));
    EXPECT_EQ(*project, *empty);
}

TEST(ProjectText, WhatTheOldFormatLacksHasGroupsOfItsOwn) {
    auto project = SampleProject();
    project->Cells[25].PumpConstant = 250000;
    project->Cells[100].PumpConstant = 1;  // no pump
    project->TableRows[2].FlowGiven = true;
    project->TableRows[3].P1Given = true;
    project->TableRows[4].P1Given = true;  // in the row that ends the list
    project->TableRows[100] = {1, 0, 2, 3, .5F, 6, 7, 8, 9, false, true, true};
    project->Pipes[2].FlowFromPoint = 3;
    project->Pipes[2].LossSum = 1.67F;
    project->Pipes[3].LossSum = 1;  // deleted
    project->TableRows[3].RowLossSum = 2.5F;
    project->TableRows[100].RowLossSum = 1;
    const std::string text = ProjectFileText(*project);
    EXPECT_EQ(text.substr(text.find("pump constants")),
              "pump constants\r\n 1 \r\n 25            250000 \r\n"
              "given zeros\r\n 3 \r\n 2             8 \r\n 3             2 \r\n"
              " 4             2 \r\n"
              "flow from end points\r\n 1 \r\n 2 \r\n"
              "pipe losses\r\n 3 \r\n"
              " 0             3             2.5 \r\n 0             100           1 \r\n"
              " 2             0             1.67 \r\n"
              "rows below a gap\r\n 2 \r\n"
              " 4             0             0             0             0             0           "
              "  0             0             0             0 \r\n"
              " 100           1             0             2             3             .5          "
              "  6             7             8             9 \r\n"
              "Project description\r\ntwo taps, one pump\r\n");
    project->Cells[100].PumpConstant = 0;
    project->Pipes[3].LossSum = 0;
    project->Pipes[4].Diameter = 12345680;
    EXPECT_EQ(*Read(ProjectFileText(*project)), *project);
}

TEST(ProjectText, TextsComeBackWhole) {
    auto project = SampleProject();
    for (const std::string text :
         {"", " a, \"b\"; 1 2 ", "caff\u00E8 \u20AC", "Project description"}) {
        project->Cells[25].Name = project->ProjectDescription = text;
        const auto copy = Read(ProjectFileText(*project));
        EXPECT_EQ(copy->Cells[25].Name, text);
        EXPECT_EQ(copy->ProjectDescription, text);
    }
    project->Cells[25].Name = "two\r\nlines";
    project->Cells[25].Param1 = NAN;
    EXPECT_EQ(Read(ProjectFileText(*project))->Cells[25].Name, "two  lines")
        << "the file stays readable";
    EXPECT_EQ(Read(ProjectFileText(*project))->Cells[25].Param1, 0);
}

TEST(ProjectText, OtherSpellingsOfTheSameProjectAreUnderstood) {
    std::string lineFeeds(kSampleText);
    std::erase(lineFeeds, '\r');
    for (const std::string& text :
         {lineFeeds, SampleWith(".0337 \r\n 0 \r\n", ".0337 \n-2\n"),     // a flag is set by 1 only
          SampleWith(" 0             50 \r\n", " 0             7 \r\n"),  // the pipe's ends decide
          SampleWith(" 4 \r\n 1 \r\n 50 \r\n 100 \r\n", " 2 \r\n 1 \r\n")}) {
        EXPECT_EQ(ProjectFileText(*Read(text)), kSampleText);
    }
    EXPECT_EQ(Read(SampleWith("big", "gr\xF6\xDF"))->Cells[25].Name, "Pump, gr\u00F6\u00DF n. 1");

    const std::vector<std::pair<std::string_view, std::string_view>> tails = {
        {"", "typed"},
        {"Project description", ""},
        {"Project description\r\n", ""},
        {"Project description\r\nshort\r", "short"},
        {"any key\nd\xE9j\xE0\nmore", "d\u00E9j\u00E0"}};
    for (const auto& [tail, description] : tails) {
        const std::string text = SampleWith("Project description\r\ntwo taps, one pump\r\n", tail);
        EXPECT_EQ(Read(text)->ProjectDescription, description);
    }
}

TEST(ProjectText, FullTablesComeBackAndTheTableEndsAtItsFirstEmptyRow) {
    auto project = SampleProject();
    project->TableRows[5].StartPoint = 1;
    EXPECT_EQ(CountTableRows(*project), 2);
    for (TableRowRec& row : project->TableRows) row.StartPoint = 1;
    project->numtubo = kMaxPipes;
    project->npres = kMaxPoints;
    for (std::size_t i = 5; i <= kMaxPipes; ++i) project->Pipes[i] = project->Pipes[i % 2 + 1];
    for (std::size_t i = 7; i <= kMaxPoints; ++i) project->Points[i] = project->Points[i % 6 + 1];
    for (std::size_t cell = 1; cell <= kMaxCells; ++cell) project->CellIsNode[cell] = true;
    for (std::size_t cell = 1; cell <= 2500; ++cell) project->Cells[cell] = project->Cells[25];
    const std::string text = ProjectFileText(*project);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 16 + 2 * 600 + 10000 + 3 * 2500 + 99);
    const auto copy = Read(text);
    EXPECT_EQ(ProjectFileText(*copy), text);
    EXPECT_EQ(copy->TableRows[101], TableRowRec{});
}

}  // namespace
}  // namespace idrova
