// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "model/project_file.h"
#include "sample_project.h"

namespace idrova {
namespace {

std::unique_ptr<Project> Reread(const Project& project) {
    auto copy = NewTestProject();
    const Status read = ReadProjectText(ProjectFileText(project), *copy);
    EXPECT_TRUE(read) << read.Error();
    return copy;
}

TEST(ProjectText, IsWrittenByteForByte) {
    EXPECT_EQ(ProjectFileText(*SampleProject()), kSampleText);
}

TEST(ProjectText, IsReadIntoTheSameProject) {
    const auto project = NewTestProject();
    const Status read = ReadProjectText(kSampleText, *project);
    ASSERT_TRUE(read) << read.Error();
    auto rounded = SampleProject();
    rounded->Pipes[4].Diameter = 12345680;  // seven digits are written
    EXPECT_EQ(*project, *rounded);
}

TEST(ProjectText, AnEmptyProjectHasOnlyKeysAndZeros) {
    const auto project = NewTestProject();
    EXPECT_EQ(ProjectFileText(*project),
              "2.6.3\r\nnumtubo\r\n 0 \r\nnpres\r\n 0 \r\nlist of pipes\r\nlist of pressures \r\n"
              "nint\r\n 0 \r\nnco\r\n 0 \r\nnumins\r\n 0 \r\nelenco tabe\r\n"
              "Project description\r\n\r\n");
    auto copy = SampleProject();
    copy->CurrentPipe = 4;
    copy->TableRows[100].EndPressure = 9;
    ASSERT_TRUE(ReadProjectText(ProjectFileText(*project), *copy));
    EXPECT_EQ(*copy, *project) << "nothing is left of the former network";
}

TEST(ProjectText, PumpConstantsAndGivenZerosHaveGroupsOfTheirOwn) {
    auto project = SampleProject();
    project->Cells[25].PumpConstant = 250000;
    project->Cells[100].PumpConstant = 1;  // no pump
    project->TableRows[2].FlowGiven = true;
    project->TableRows[3].P1Given = true;
    project->TableRows[4].P1Given = true;  // below the last row
    const std::string text = ProjectFileText(*project);
    EXPECT_EQ(text.substr(text.find("pump constants")),
              "pump constants\r\n 1 \r\n 25            250000 \r\n"
              "given zeros\r\n 2 \r\n 2             8 \r\n 3             2 \r\n"
              "Project description\r\ntwo taps, one pump\r\n");
    project->Cells[100].PumpConstant = 0;
    project->TableRows[4].P1Given = false;
    project->Pipes[4].Diameter = 12345680;
    EXPECT_EQ(*Reread(*project), *project);
}

TEST(ProjectText, TextsComeBackWhole) {
    for (const std::string text :
         {"", " a, \"b\"; 1 2 ", "caff\u00E8 \u20AC", "Project description"}) {
        auto project = SampleProject();
        project->Cells[25].Name = project->ProjectDescription = text;
        const auto copy = Reread(*project);
        EXPECT_EQ(copy->Cells[25].Name, text);
        EXPECT_EQ(copy->ProjectDescription, text);
    }
    auto project = SampleProject();
    project->Cells[25].Name = "two\r\nlines";
    EXPECT_EQ(Reread(*project)->Cells[25].Name, "two  lines");
    project->Cells[25].Param1 = NAN;
    EXPECT_EQ(Reread(*project)->Cells[25].Param1, 0) << "the file stays readable";
}

TEST(ProjectText, OldBytesAndOtherLineEndsAreUnderstood) {
    auto read = [](const std::string& text) {
        auto project = NewTestProject();
        project->ProjectDescription = "typed";
        const Status status = ReadProjectText(text, *project);
        EXPECT_TRUE(status) << status.Error();
        return project;
    };
    std::string lines(kSampleText);
    std::erase(lines, '\r');
    EXPECT_EQ(ProjectFileText(*read(lines)), kSampleText) << "line feeds only";
    EXPECT_EQ(ProjectFileText(*read(SampleWith(".0337 \r\n 0 \r\n", ".0337 \n-2\n"))), kSampleText)
        << "a flag is set by 1 only";
    EXPECT_EQ(read(SampleWith("big", "gr\xF6\xDF"))->Cells[25].Name, "Pump, gr\u00F6\u00DF n. 1");

    const std::string_view tail = "Project description\r\ntwo taps, one pump\r\n";
    struct Case {
        std::string_view tail, description;
    };
    const std::vector<Case> cases = {{"", "typed"},
                                     {"Project description", ""},
                                     {"Project description\r\n", ""},
                                     {"Project description\r\nshort\r", "short"},
                                     {"any key\nd\xE9j\xE0\nmore", "d\u00E9j\u00E0"}};
    for (const auto& c : cases) {
        EXPECT_EQ(read(SampleWith(tail, c.tail))->ProjectDescription, c.description);
    }
}

TEST(ProjectText, OnlyConsecutiveTableRowsAreWritten) {
    auto project = NewTestProject();
    project->TableRows[2].StartPoint = project->TableRows[3].StartPoint = 1;
    project->TableRows[5].StartPoint = 1;
    EXPECT_EQ(CountTableRows(*project), 2);
    for (TableRowRec& row : project->TableRows) row.StartPoint = 1;
    EXPECT_EQ(Reread(*project)->numins, 99);
    EXPECT_EQ(Reread(*project)->TableRows[101], TableRowRec{});
}

TEST(ProjectText, FullTablesComeBack) {
    auto project = SampleProject();
    project->numtubo = kMaxPipes;
    project->npres = kMaxPoints;
    for (std::size_t i = 5; i <= kMaxPipes; ++i) project->Pipes[i] = project->Pipes[i % 2 + 1];
    for (std::size_t i = 7; i <= kMaxPoints; ++i) project->Points[i] = project->Points[i % 6 + 1];
    for (std::size_t cell = 1; cell <= kMaxCells; ++cell) project->CellIsNode[cell] = true;
    for (std::size_t cell = 1; cell <= 2500; ++cell) project->Cells[cell] = project->Cells[25];
    const std::string text = ProjectFileText(*project);
    EXPECT_EQ(ProjectFileText(*Reread(*project)), text);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 18 + 2 * 600 + 10000 + 3 * 2500);
}

}  // namespace
}  // namespace idrova
