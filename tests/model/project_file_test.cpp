// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/project_file.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <chrono>
#include <csignal>
#include <vector>

#include "model/messages.h"
#include "sample_project.h"
#include "support/scripted_boxes.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// Notes the hand-overs in the order of their calls.
struct StepLog {
    std::string steps;
    HandOvers handOvers{[this] { steps += "clear "; }, [this] { steps += "reread "; },
                        [this] { steps += "table "; }, [this] { steps += "show "; },
                        [this](std::string_view name) { steps += "title:" + std::string(name); }};
};

TEST(OpenProject, HandsTheNetworkToTheViewOfTheMode) {
    const TempFolder folder;
    PutFile(folder / "a.iv", kSampleText);
    for (const auto& [mode, steps] : {std::pair(WorkMode::Graphic, "clear reread show "),
                                      std::pair(WorkMode::Table, "table show ")}) {
        auto project = NewTestProject();
        project->Mode = mode;
        ScriptedBoxes boxes;
        StepLog log;
        EXPECT_EQ(OpenProject(*project, folder / "a.iv", boxes, log.handOvers),
                  OpenOutcome::Opened);
        EXPECT_EQ(log.steps, steps);
        EXPECT_EQ(ProjectFileText(*project), kSampleText);
    }
}

TEST(OpenProject, AnOldVersionLeavesAnEmptyProject) {
    const TempFolder folder;
    PutFile(folder / "old.iv", "2.4\r\nwhatever");
    auto project = SampleProject();
    project->ProjectName = "old.iv";
    project->Mode = WorkMode::Table;
    ScriptedBoxes boxes;
    boxes.Expect({"Projects saved before version 2.5.0 can nor be opened", "Open file"});
    StepLog log;
    EXPECT_EQ(OpenProject(*project, folder / "old.iv", boxes, log.handOvers), OpenOutcome::TooOld);
    EXPECT_EQ(log.steps, "table clear reread title:New project");
    auto expected = NewTestProject();
    expected->Mode = WorkMode::Table;
    expected->ProjectDescription = project->ProjectDescription;
    EXPECT_EQ(*project, *expected);
}

TEST(OpenProject, WhatCannotBeOpenedChangesNothing) {
    const TempFolder folder;
    PutFile(folder / "cut.iv", kSampleText.substr(0, 300));
    PutFile(folder / "empty.iv", "");
    PutFile(folder / "line.iv", "");
    fs::resize_file(folder / "line.iv", 15'000'000);
    PutFile(folder / "huge.iv", "2.6.3");
    fs::resize_file(folder / "huge.iv", 100'000'000);
    fs::create_directory(folder / "folder.iv");
    struct Case {
        std::string_view name;
        OpenOutcome outcome;
        std::string text;
    };
    const std::vector<Case> cases = {
        {"none.iv", OpenOutcome::Missing, "File does not exist"},
        {"cut.iv", OpenOutcome::Malformed, "The file is not a valid project, line 9: "},
        {"empty.iv", OpenOutcome::Malformed, "The file is not a valid project, line 1: "},
        {"line.iv", OpenOutcome::Malformed, "The file is not a valid project, line 1: "},
        {"huge.iv", OpenOutcome::Unreadable, "too large"},
        {"folder.iv", OpenOutcome::Unreadable, "folder.iv is not a file"},
    };
    const auto untouched = SampleProject();
    for (const auto& c : cases) {
        auto project = SampleProject();
        RecordedBoxes boxes;
        StepLog log;
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(OpenProject(*project, folder / c.name, boxes, log.handOvers), c.outcome);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
        EXPECT_EQ(log.steps, "");
        EXPECT_EQ(*project, *untouched) << c.name;
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_THAT(boxes.shown[0].title + ": " + boxes.shown[0].text, HasSubstr(c.text));
    }
}

TEST(SaveProject, AsksBeforeItReplacesAFile) {
    const TempFolder folder;
    const fs::path path = folder / "a.iv";
    auto project = SampleProject();
    project->numins = 50;
    ScriptedBoxes boxes;
    EXPECT_EQ(SaveProject(*project, path, boxes), SaveOutcome::Saved);
    EXPECT_EQ(project->numins, 2);
    EXPECT_EQ(FileBytes(path), kSampleText);

    const MessageBox question("The file esists, do you want to overwrite it ?", "Save file",
                              BoxIcon::Information, BoxButtons::YesNo);
    project->numtubo = project->numins = 0;
    boxes.Expect(question, Answer::No);
    EXPECT_EQ(SaveProject(*project, path, boxes), SaveOutcome::Declined);
    EXPECT_EQ(FileBytes(path), kSampleText);
    EXPECT_EQ(project->numins, 0) << "not saved, not recounted";

    boxes.Expect(question, Answer::Yes);
    EXPECT_EQ(SaveProject(*project, path, boxes), SaveOutcome::Saved);
    EXPECT_EQ(FileBytes(path), ProjectFileText(*project));
    EXPECT_EQ(FileBytes(folder / "a.iv~"), kSampleText) << "the previous version";
}

/// 0 when saving over `path` fails as it must: one box, nothing else changed. For a child process.
int FailToSave(const fs::path& path) {
    auto project = SampleProject();
    project->numins = 50;
    const Project before = *project;
    RecordedBoxes boxes(Answer::Yes);
    const bool failed = SaveProject(*project, path, boxes) == SaveOutcome::Failed;
    const bool told = !boxes.shown.empty() && boxes.shown.back().icon == BoxIcon::Critical;
    return failed && told && *project == before ? 0 : 1;
}

TEST(SaveProjectDeathTest, AFullDiskOrALockedFolderLeavesTheOldFile) {
    const TempFolder folder;
    fs::create_directory(folder / "disk");
    PutFile(folder / "disk/a.iv", "old");
    PutFile(folder / "a.iv", "old");
    fs::permissions(folder / "disk", fs::perms(0777));
    fs::permissions(folder.Path(), fs::perms(0555));
    const auto save = [&](std::string_view name, rlim_t room) {
        if (::geteuid() == 0 && ::setuid(65534) != 0) std::_Exit(2);  // root may write anything
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{room, room};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        std::_Exit(FailToSave(folder / name));
    };
    const testing::ExitedWithCode asItMust(0);
    for (rlim_t room = 0; room < kSampleText.size(); room += 97) {
        EXPECT_EXIT(save("disk/a.iv", room), asItMust, "") << room;
    }
    for (const std::string_view name : {"a.iv", "new.iv", "disk", "none/a.iv", "a.iv/a.iv"}) {
        EXPECT_EXIT(save(name, RLIM_INFINITY), asItMust, "") << name;
    }
    fs::permissions(folder.Path(), fs::perms(0777));
    EXPECT_EQ(FileBytes(folder / "disk/a.iv") + FileBytes(folder / "a.iv"), "oldold");
    EXPECT_EQ(std::distance(fs::recursive_directory_iterator(folder.Path()), {}), 3);
}

}  // namespace
}  // namespace idrova
