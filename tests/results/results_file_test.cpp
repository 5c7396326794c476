// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/results_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "results/editor_setting.h"
#include "results/messages.h"
#include "support/scripted_boxes.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

class ResultsFile : public testing::Test {
  protected:
    fs::path Editor() {
        PutFile(folder / "my editor", "");
        return folder / "my editor";
    }

    void Show(const Status& started = Done{}) {
        ShowResults(folder.Path(), boxes, [&](const fs::path& program, const fs::path& file) {
            starts.emplace_back(program, file);
            return started;
        });
    }

    TempFolder folder;
    fs::path results = folder / "out.dat";
    Settings settings;
    ScriptedBoxes boxes;
    std::vector<std::pair<fs::path, fs::path>> starts;
};

TEST_F(ResultsFile, ReportReplacesOrFollowsTheOldOnes) {
    ASSERT_TRUE(WriteReport(settings, "one", folder.Path(), boxes));
    ASSERT_TRUE(WriteReport(settings, "two", folder.Path(), boxes));
    EXPECT_EQ(FileBytes(results), "two");

    settings.ResultsInSequence = true;
    ASSERT_TRUE(WriteReport(settings, "three", folder.Path(), boxes));
    EXPECT_EQ(FileBytes(results), "twothree");

    fs::remove(results);
    ASSERT_TRUE(WriteReport(settings, "four", folder.Path(), boxes));
    EXPECT_EQ(FileBytes(results), "four");
}

TEST_F(ResultsFile, FailureIsToldAndLeavesWhatWasThere) {
    fs::create_directory(results);
    fs::create_directory(folder / "IV.CFG");
    EXPECT_EQ(EditorBoxText(folder.Path()), "");
    for (const bool inSequence : {false, true}) {
        settings.ResultsInSequence = inSequence;
        RecordedBoxes told;
        EXPECT_FALSE(WriteReport(settings, "report", folder.Path(), told));
        EXPECT_FALSE(SaveEditor(folder.Path(), Editor().string(), told));
        ASSERT_EQ(told.shown.size(), 2U);
        EXPECT_EQ(told.shown[0].title, "Results");
        EXPECT_EQ(told.shown[1].title, "Text editor");
        EXPECT_EQ(told.shown[0].icon, BoxIcon::Critical);
        EXPECT_THAT(told.shown[0].text, testing::HasSubstr("out.dat"));
    }
    EXPECT_TRUE(fs::is_directory(results));
    EXPECT_FALSE(StoreReport(settings, "report", folder / "missing"));
}

TEST_F(ResultsFile, PrintingAndDeletingAskFirst) {
    std::string printed;
    const auto print = [&printed](const std::string& text) { printed += text; };
    boxes.Expect(kAskPrint, Answer::No).Expect(kAskPrint, Answer::Yes);
    PrintReport("declined", boxes, print);
    PrintReport("report", boxes, print);
    EXPECT_EQ(printed, "report");

    PutFile(results, "old");
    boxes.Expect(kAskDeleteResults, Answer::Cancel);
    DeleteResults(folder.Path(), boxes);
    EXPECT_TRUE(fs::exists(results));
    for (int i = 0; i < 2; ++i) {  // the second time there is nothing left, which is not told
        boxes.Expect(kAskDeleteResults, Answer::Ok);
        DeleteResults(folder.Path(), boxes);
        EXPECT_FALSE(fs::exists(results));
    }
}

TEST_F(ResultsFile, ShowStartsTheConfiguredEditorOnce) {
    PutFile(results, "report");
    PutFile(folder / "IV.CFG", Editor().string() + "\r\nsecond line\r\n");
    Show();
    ASSERT_EQ(starts.size(), 1U);
    EXPECT_EQ(starts[0], std::pair(Editor(), results));

    boxes.Expect({"no display", "Files visualization"});
    Show(Failure{"no display"});
}

TEST_F(ResultsFile, ShowSaysAllThatIsMissing) {
    boxes.Expect(kConfigureEditor).Expect(kNoResultsFile);
    Show();

    PutFile(results, "report");
    PutFile(folder / "IV.CFG", (folder / "gone").string() + "\r\n");
    boxes.Expect(kConfigureEditor);
    Show();

    fs::remove(results);
    PutFile(folder / "IV.CFG", Editor().string());
    boxes.Expect(kNoResultsFile);
    Show();
    EXPECT_TRUE(starts.empty());
}

TEST_F(ResultsFile, EditorSettingIsCheckedStoredAndShown) {
    EXPECT_EQ(EditorBoxText(folder.Path()), kChooseEditor);
    for (const std::string& wrong : {std::string(), folder.Path().string(), std::string("/gone")}) {
        boxes.Expect(kEditorNotFound);
        EXPECT_FALSE(SaveEditor(folder.Path(), wrong, boxes));
    }
    EXPECT_FALSE(fs::exists(folder / "IV.CFG"));

    EXPECT_TRUE(SaveEditor(folder.Path(), Editor().string(), boxes));
    EXPECT_EQ(FileBytes(folder / "IV.CFG"), Editor().string() + "\r\n");
    EXPECT_EQ(EditorBoxText(folder.Path()), Editor().string());

    fs::remove(folder / "my editor");
    EXPECT_EQ(EditorBoxText(folder.Path()), "");
    EXPECT_FALSE(EditorSuggestions().empty());
}

}  // namespace
}  // namespace idrova
