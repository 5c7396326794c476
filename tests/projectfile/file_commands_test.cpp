// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "projectfile/file_form.h"
#include "projectfile/messages.h"
#include "projectfile/project_file.h"
#include "projectfile/unsaved_copy.h"
#include "support/sample_project.h"
#include "support/scripted_boxes.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

class FileCommands : public testing::Test {
  protected:
    FileChange Confirm(FilePurpose purpose, std::string_view name) {
        FileForm form = StartFileForm(purpose, folder.Path(), *project);
        TypeName(form, name, boxes);
        form.Text4 = "typed";
        return ConfirmFileForm(form, *project, boxes);
    }
    /// Name and description of the project.
    std::string State() { return project->ProjectName + "|" + project->ProjectDescription; }
    std::string Path(std::string_view name) const { return (folder / name).string(); }

    TempFolder folder;
    ScriptedBoxes boxes;
    std::unique_ptr<Project> project = SampleProject();
};

TEST_F(FileCommands, NamesAndFiltersHaveForbiddenCharacters) {
    FileForm form = StartFileForm(FilePurpose::Save, "/home", *project);
    EXPECT_EQ(FileFormCaption(form.purpose), "Idrova - Save project");
    EXPECT_EQ(FileFormCaption(FilePurpose::Open), "Idrova - Open project");
    EXPECT_EQ(form.Text1 + " " + form.Text2, "*.iv /home");
    EXPECT_EQ(form.Text4, project->ProjectDescription) << "saving elsewhere keeps it";
    TypeName(form, "plant", boxes);
    EXPECT_EQ(form.Text2, "/home/plant");
    ChooseFolder(form, "/");
    EXPECT_EQ(form.Text2, "/plant");
    for (const std::string bad : {"a:b", "a;b", "a/b", "a\\b"}) {
        boxes.Expect({"Name not allowed", "Save project"});
        TypeName(form, bad, boxes);
        TypeFilter(form, bad);
        EXPECT_EQ(form.Text3 + form.pattern, "*.iv");
    }
    TypeFilter(form, "p*");
    DoubleClickFile(form, "a.iv");
    EXPECT_EQ(form.pattern + form.Text2 + form.Text3, "p*/a.iv");
}

TEST_F(FileCommands, AClickShowsTheDescription) {
    const std::vector<std::pair<std::string_view, std::string_view>> cases = {
        {kSampleText, "two taps, one pump"},
        {"2.6.3\nProject description\nd\xE9j\xE0 \r\nvu", "d\u00E9j\u00E0 vu"},
        {"2.6.3\r\n", ""},
        {"Project description", ""}};
    for (const auto& [text, description] : cases) {
        PutFile(folder / "a.iv", text);
        FileForm form = StartFileForm(FilePurpose::Open, folder.Path(), *project);
        ClickFile(form, "a.iv", boxes);
        EXPECT_EQ(form.Text2 + "|" + form.Text3, Path("a.iv") + "|a.iv");
        EXPECT_EQ(form.Text4, description);
    }
    EXPECT_EQ(DescriptionIn(folder / "none.iv"), "");
    EXPECT_EQ(NearestFolder(folder / "gone" / "deeper"), folder.Path());
    EXPECT_EQ(NearestFolder("/absent"), "/");
}

TEST_F(FileCommands, SavingNamesTheProjectAndAsksBeforeItReplacesAFile) {
    EXPECT_FALSE(Confirm(FilePurpose::Save, "").done) << "no name: the window stays";
    for (const auto& [name, file] : {std::pair("b.iv", "b.iv"), std::pair("plant", "plant.iv"),
                                     std::pair("plant.IV", "plant.IV.iv")}) {
        project->numins = 50;
        const FileChange saved = Confirm(FilePurpose::Save, name);
        EXPECT_TRUE(saved.done);
        EXPECT_EQ(saved.title, name);
        EXPECT_EQ(saved.network, NetworkChange::None);
        EXPECT_EQ(State(), Path(file) + "|typed");
        EXPECT_EQ(FileBytes(folder / file), SampleWith("two taps, one pump", "typed"));
        EXPECT_EQ(project->numins, 2);
    }
    const MessageBox question("The file esists, do you want to overwrite it ?", "Save file",
                              BoxIcon::Information, BoxButtons::YesNo);
    fs::create_directory(folder / "folder.iv");
    project->ProjectDescription = "later";
    project->numins = 50;
    const Project before = *project;
    boxes.Expect(SaveFailed(Path("folder.iv") + " is a folder"));
    EXPECT_FALSE(Confirm(FilePurpose::Save, "folder").done) << "the window keeps what was typed";
    boxes.Expect(question, Answer::No).Expect(question, Answer::Yes);
    EXPECT_EQ(SaveToOwnFile(*project, boxes), SaveOutcome::Declined);
    EXPECT_EQ(DescriptionIn(project->ProjectName), "typed");
    EXPECT_EQ(*project, before) << "not saved, not recounted";
    EXPECT_EQ(SaveToOwnFile(*project, boxes), SaveOutcome::Saved);
    EXPECT_EQ(DescriptionIn(project->ProjectName), "later");
    EXPECT_EQ(DescriptionIn(project->ProjectName + "~"), "typed") << "the previous version";
}

TEST_F(FileCommands, OpeningReplacesTheProjectOrSaysWhyNot) {
    const std::string course = "run along a row or a column, from one cell to another";
    PutFile(folder / "good.iv", kSampleText);
    PutFile(folder / "cut.iv", "2.6.3\r\n");
    PutFile(folder / "bent.iv", SampleWith(" 2500          1.2", " 2499          1.2"));
    PutFile(folder / "old.iv", " 2.4 \r\nwhatever");
    PutFile(folder / "line.iv", "");
    fs::resize_file(folder / "line.iv", 15'000'000);
    PutFile(folder / "huge.iv", "");
    fs::resize_file(folder / "huge.iv", 100'000'000);
    fs::create_directory(folder / "folder.iv");
    const std::string stays = "mine.iv|two taps, one pump";
    const MessageBox missing("File does not exist", "Open file", BoxIcon::Information);
    const MessageBox tooOld("Projects saved before version 2.5.0 can nor be opened", "Open file");
    struct Case {
        std::string name;
        std::optional<MessageBox> box;
        std::string state;
        std::string title = {};  ///< empty: the window stays
        NetworkChange network = NetworkChange::None;
    };
    const std::vector<Case> cases = {
        {"good", {}, Path("good.iv") + "|two taps, one pump", "good", NetworkChange::Replaced},
        {"cut", ProjectMalformed("line 2: the line is missing"), stays},
        {"bent", ProjectMalformed("pipe 4 must " + course), stays},
        {"line", ProjectMalformed("line 1: the file ends inside the line"), stays},
        {"huge", OpenFailed(Path("huge.iv") + " is too large"), stays},
        {"folder", OpenFailed(Path("folder.iv") + " is not a file"), stays},
        {"none", missing, Path("none.iv") + "|two taps, one pump", "none"},
        {"old", tooOld, "New project|typed", "New project", NetworkChange::Emptied},
    };
    for (const Case& c : cases) {
        project = SampleProject();
        project->ProjectName = "mine.iv";
        const Project before = *project;
        if (c.box) boxes.Expect(*c.box);
        const FileChange change = Confirm(FilePurpose::Open, c.name);
        EXPECT_EQ(change.done, c.state != stays) << c.name;
        EXPECT_EQ(change.title, c.title);
        EXPECT_EQ(change.network, c.network) << c.name;
        EXPECT_EQ(State(), c.state);
        EXPECT_EQ(*project == before, c.state == stays) << c.name;
        EXPECT_EQ(project->numtubo, c.name == "old" ? 0 : 4);
    }
}

TEST_F(FileCommands, ANewProjectForgetsItsFile) {
    project->ProjectName = "mine.iv";
    const MessageBox question("Do you want to leave current project ?", "New project",
                              BoxIcon::Question, BoxButtons::OkCancel);
    boxes.Expect(question, Answer::Cancel).Expect(question, Answer::Ok);
    EXPECT_FALSE(NewProject(*project, boxes));
    EXPECT_EQ(State(), "mine.iv|two taps, one pump");
    EXPECT_TRUE(NewProject(*project, boxes));
    EXPECT_EQ(State(), "New project|two taps, one pump");
    EXPECT_EQ(project->numtubo, 0);
    EXPECT_EQ(SaveToOwnFile(*project, boxes), std::nullopt) << "the window is needed";
}

TEST_F(FileCommands, WhatIsLeftUnsavedIsKept) {
    const fs::path copy = folder / kUnsavedFile;
    EXPECT_EQ(UnsavedText(*std::make_unique<Project>()), std::nullopt) << "nothing to lose";
    const auto first = UnsavedText(*project);
    KeepUnsaved(first, folder / "absent");
    KeepUnsaved(first, folder.Path());
    const auto again = std::make_unique<Project>();
    EXPECT_TRUE(ReadProjectText(FileBytes(copy), *again));
    EXPECT_EQ(again->numtubo, 4);
    ASSERT_TRUE(Confirm(FilePurpose::Save, "plant").done);
    EXPECT_EQ(UnsavedText(*project), std::nullopt) << "its own file holds the same";
    project->Pipes[1].Length += 1;
    const auto second = UnsavedText(*project);
    for (int times = 0; times < 2; ++times) KeepUnsaved(second, folder.Path());
    EXPECT_EQ(FileBytes(copy), second);
    EXPECT_EQ(FileBytes(copy.string() + "~"), first) << "the same again leaves the one before";
}

}  // namespace
}  // namespace idrova
