// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <tuple>
#include <vector>

#include "model/invariants.h"
#include "projectfile/project_file.h"
#include "support/sample_project.h"

namespace idrova {
namespace {

using testing::StartsWith;

/// The fault that reading `text` reports, empty when it is accepted. Checks that a refusal changes
/// nothing, and that what is accepted is sound and survives saving.
std::string FaultOf(std::string_view text) {
    static const auto untouched = SampleProject();
    static auto project = SampleProject();
    if (const Status read = ReadProjectText(text, *project); !read) {
        EXPECT_EQ(*project, *untouched) << text;
        return read.Error();
    }
    EXPECT_THAT(BrokenInvariants(*project), testing::IsEmpty()) << text;
    const std::string saved = ProjectFileText(*project);
    EXPECT_TRUE(ReadProjectText(saved, *project));
    EXPECT_EQ(ProjectFileText(*project), saved) << text;
    project = SampleProject();
    return {};
}

TEST(MalformedProject, IsRefusedWithThePlaceNamed) {
    const std::string_view pipe = " 1             50 ";
    const std::string_view points = " 4             5 ";
    const std::vector<std::tuple<std::string_view, std::string_view, std::string>> cases = {
        {kSampleText, "", "line 1: the line is missing"},
        {pipe, " 0             50 ", "line 7: one end of the pipe has no cell"},
        {pipe, " 0             0 ", "line 7: the points of a deleted pipe must be -10"},
        {"Project d", "flow from end points\n1\n5\nProject d", "line 49: item 1 must be"},
        {pipe, " 1             2501 ", "line 7: item 2 must be a whole number from 0 to 2500"},
        {pipe, " 1 ", "line 7: 10 items expected, found 9"},
        {pipe, " 1 2 3 ", "line 7: 10 items expected, found more"},
        {".0279", "nan", "line 7: item 3 is not a number"},
        {".0279", "-3.5e38", "line 7: item 3 is too large"},
        {" 2             3  ", " 2             7  ", "line 9: the points of the pipe must lie"},
        {" 2             3  ", " 2             6  ", "line 9: the pipe ends in a deleted point"},
        {"-10 ", "-9 ", "line 11: the points of a deleted pipe must be -10"},
        {" 101325        1 \r\n 0 ", " 101325        1 \r\n .5 ", "line 17: item 1 must be"},
        {" 2500 \r\nnco", " 10001 \r\nnco", "line 33: item 1 must be a whole number from 1"},
        {" 25            1 ", " 25            3 ", "line 36: item 2 must be a whole number from 1"},
        {" 25            1 ", " 2501          1 ", "line 36: item 1 must be"},
        {" 1             303975        2", " 1 303975 40000", "line 45: item 3 must be"},
        {"Project d", "pump constants\n1\n26 3\nProject d", "line 49: no pump stands"},
        {"Project d", "given zeros\n1\n4 2\nProject d", "line 49: the file has no such row"},
        {"Project d", "given zeros\n1\n101 2\nProject d", "line 49: item 1 must be"},
        {"Project d", "rows below a gap\n1\n4 1 0 2 0 0 0 0 0 0\nProject d", "line 49: there is"},
        {"Project d", "rows below a gap\n1\n3 0 0 2 0 0 0 0 0 0\nProject d", "line 49: item 1"},
        {"Project d", "rows below a gap\n1\n101 0 0 2 0 0 0 0 0 0\nProject d", "line 49: item 1"},
        {"Project d", "rows below a gap\n1\n9 1 0 2 0 0 0 0 0\nProject d", "line 49: 10 items"},
        {"Project d", "rows below a gap\n2\n9 1 0 2 0 0 0 0 0 0\n9 1 0 2 0 0 0 0 0 0\nProject d",
         "line 50: item 1 must be a whole number from 10 to 100"},
        {"Project d", "pipe losses\n1\n5 0 1\nProject d", "line 49: item 1 must be"},
        {"Project d", "pipe losses\n1\n0 4 1\nProject d", "line 49: the file has no such row"},
        {"Project d", "pipe losses\n1\n1 2 1\nProject d", "line 49: item 2 must be"},
        {"Project d", "pipe losses\n1\n1 0 -1\nProject d", "line 49: the sum of the loss"},
        {"Project d", "pipe losses\n1\n1 1\nProject d", "line 49: "},
        {"Project d", "given zeros\n1\n2 3\nProject d", "line 49: the column must be 2, 4 or 8"},
        {" 2500          1.2", " 2499          1.2", "pipe 4 must run along a row or a column"},
        {points, " 5             5 ", "pipe 4 must end where its points lie"},
    };
    for (const auto& [from, to, fault] : cases) {
        EXPECT_THAT(FaultOf(SampleWith(from, to)), StartsWith(fault)) << to;
    }
    for (const std::string_view version : {"2.4", " 2.4 ", "-3", "2.49999 x"}) {
        EXPECT_THAT(FaultOf(SampleWith("2.6.3", version)), StartsWith("Projects saved before"));
    }
    for (const std::string_view version : {"2.5", "2.4.9", "", "text", "2,4"}) {
        EXPECT_EQ(FaultOf(SampleWith("2.6.3", version)), "") << version;
    }
}

TEST(MalformedProject, CountsThatLieAreRefused) {
    for (const auto& [key, count, capacity] :
         {std::tuple("numtubo\r\n", " 4 ", 200), std::tuple("npres\r\n", " 6 ", 400),
          std::tuple("nint\r\n", " 4 ", 10000), std::tuple("nco\r\n", " 2 ", 10000),
          std::tuple("numins\r\n", " 2 ", 199)}) {
        const std::string full = std::to_string(capacity);
        const std::string above = std::to_string(capacity + 1);
        for (const std::string lie :
             {"-1", "0", above.c_str(), full.c_str(), "32768", "1e9", "1e99", "two", "", "1.5"}) {
            EXPECT_NE(FaultOf(SampleWith(std::string(key) + count, key + lie)), "") << key << lie;
        }
    }
}

/// Only a cut behind the table leaves a project, the same one without its description.
TEST(MalformedProject, ACutFileIsRefusedOrLosesNoNumber) {
    auto project = SampleProject();
    project->Cells[25].PumpConstant = 250000;
    project->TableRows[2].FlowGiven = true;
    const std::string text = ProjectFileText(*project);
    int accepted = 0;
    for (std::size_t length = 0; length < text.size(); ++length) {
        const std::string cut = text.substr(0, length);
        if (!FaultOf(cut).empty()) continue;
        ++accepted;
        auto rest = NewTestProject();
        ASSERT_TRUE(ReadProjectText(cut, *rest));
        EXPECT_EQ(rest->numtubo + rest->npres + rest->numins, 12) << length;
        const bool atKey = cut.find("Project d") != std::string::npos;
        EXPECT_EQ(rest->TableRows[2].FlowGiven, atKey || cut.ends_with("8 \r\n")) << length;
    }
    // Behind the rows and each group, and from the whole description key on.
    EXPECT_EQ(accepted, 3 + 22);
}

}  // namespace
}  // namespace idrova
