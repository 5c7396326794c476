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
        form.description = "typed";
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
    EXPECT_EQ(form.filter + " " + form.path, "*.iv /home");
    EXPECT_EQ(form.description, project->ProjectDescription) << "saving elsewhere keeps it";
    TypeName(form, "plant", boxes);
    EXPECT_EQ(form.path, "/home/plant");
    ChooseFolder(form, "/");
    EXPECT_EQ(form.path, "/plant");
    for (const std::string bad : {"a:b", "a;b", "a/b", "a\\b"}) {
        boxes.Expect({"Name not allowed", "Save project"});
        TypeName(form, bad, boxes);
        TypeFilter(form, bad);
        EXPECT_EQ(form.name + form.pattern, "*.iv");
    }
    TypeFilter(form, "p*");
    DoubleClickFile(form, "a.iv");
    EXPECT_EQ(form.pattern + form.path + form.name, "p*/a.iv");
    EXPECT_EQ(NearestFolder(folder / "gone" / "deeper"), folder.Path());
    EXPECT_EQ(NearestFolder("/absent"), "/");
}

TEST_F(FileCommands, AClickShowsTheDescription) {
    const std::vector<std::pair<std::string_view, std::string_view>> cases = {
        {kSampleText, "two taps, one pump"},
        {"2.6.3\nProject description\nd\xE9j\xE0 \r\nvu", "d\u00E9j\u00E0 vu"},
        {"2.6.3\r\n", ""}};
    FileForm form = StartFileForm(FilePurpose::Open, folder.Path(), *project);
    for (const auto& [text, description] : cases) {
        PutFile(folder / "a.iv", text);
        ClickFile(form, "a.iv", boxes);
        EXPECT_EQ(form.path + form.name + form.description,
                  Path("a.iv") + "a.iv" + std::string(description));
    }
}

TEST_F(FileCommands, SavingNamesTheProjectAndAsksBeforeItReplacesAFile) {
    EXPECT_FALSE(Confirm(FilePurpose::Save, "").done) << "no name: the window stays";
    for (const auto& [name, file] :
         {std::pair("b.iv", "b.iv"), std::pair("plant.IV", "plant.IV.iv"),
          std::pair("plant", "plant.iv")}) {
        project->numins = 50;
        const FileChange saved = Confirm(FilePurpose::Save, name);
        EXPECT_TRUE(saved.done && saved.network == NetworkChange::None);
        EXPECT_EQ(saved.title, name);
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
    boxes.Expect(SaveFailed(Path("folder.iv") + " is a folder")).Expect(question, Answer::No);
    EXPECT_FALSE(Confirm(FilePurpose::Save, "folder").done) << "the window keeps what was typed";
    EXPECT_FALSE(Confirm(FilePurpose::Save, "b").done);
    EXPECT_EQ(*project, before) << "neither named nor described nor recounted";
    boxes.Expect(question, Answer::No).Expect(question, Answer::Yes);
    EXPECT_EQ(SaveToOwnFile(*project, boxes), SaveOutcome::Declined);
    const std::string previous = FileBytes(project->ProjectName);
    EXPECT_EQ(SaveToOwnFile(*project, boxes), SaveOutcome::Saved);
    EXPECT_EQ(FileBytes(project->ProjectName), SampleWith("two taps, one pump", "later"));
    EXPECT_EQ(FileBytes(project->ProjectName + "~"), previous);
}

TEST_F(FileCommands, OpeningReplacesTheProjectOrSaysWhyNot) {
    const std::string course = "run along a row or a column, from one cell to another";
    for (const char* good : {"good.iv", "good", "UP.IV", "unsaved.iv~"}) {
        PutFile(folder / good, kSampleText);
    }
    PutFile(folder / "cut.iv", "2.6.3\r\n");
    PutFile(folder / "bent.iv", SampleWith(" 2500          1.2", " 2499          1.2"));
    PutFile(folder / "old.iv", " 2.4 \r\nwhatever");
    PutFile(folder / "line.iv", "");
    fs::resize_file(folder / "line.iv", 15'000'000);
    PutFile(folder / "huge.iv", "");
    fs::resize_file(folder / "huge.iv", 100'000'000);
    fs::create_directory(folder / "folder.iv");
    const MessageBox missing("File does not exist", "Open file", BoxIcon::Information);
    const MessageBox tooOld("Projects saved before version 2.5.0 can nor be opened", "Open file");
    const struct {
        std::string name, file;  ///< that the project has then; empty: all stays, with the window
        NetworkChange network = NetworkChange::None;
        std::optional<MessageBox> box = {};
    } cases[] = {
        {"good", "good.iv", NetworkChange::Replaced},
        {"UP.IV", "UP.IV", NetworkChange::Replaced},
        {"unsaved.iv~", "unsaved.iv~", NetworkChange::Replaced},
        {"none", "none.iv", NetworkChange::None, missing},
        {"old", kNewProject, NetworkChange::Emptied, tooOld},
        {"cut", "", NetworkChange::None, ProjectMalformed("line 2: the line is missing")},
        {"bent", "", NetworkChange::None, ProjectMalformed("pipe 4 must " + course)},
        {"line", "", NetworkChange::None,
         ProjectMalformed("line 1: the file ends inside the line")},
        {"huge", "", NetworkChange::None, OpenFailed(Path("huge.iv") + " is too large")},
        {"folder", "", NetworkChange::None, OpenFailed(Path("folder.iv") + " is not a file")},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        project = SampleProject();
        project->ProjectName = "mine.iv";
        const Project before = *project;
        if (c.box) boxes.Expect(*c.box);
        const FileChange change = Confirm(FilePurpose::Open, c.name);
        EXPECT_EQ(change.done, !c.file.empty());
        EXPECT_EQ(change.network, c.network);
        EXPECT_EQ(*project == before, !change.done);
        if (!change.done) continue;
        const bool empty = c.network == NetworkChange::Emptied;
        EXPECT_EQ(change.title, empty ? kNewProject : c.name);
        EXPECT_EQ(State(), empty ? "New project|typed" : Path(c.file) + "|two taps, one pump");
        EXPECT_EQ(project->numtubo, empty ? 0 : 4);
    }
    PutFile(folder / "a:b", kSampleText);
    EXPECT_EQ(OpenNamedFile(folder / "a:b", *project, boxes).title, "a:b") << "as it stands";
    EXPECT_EQ(State(), Path("a:b") + "|two taps, one pump");
}

TEST_F(FileCommands, ANewProjectForgetsItsFile) {
    project->ProjectName = "mine.iv";
    const MessageBox question("Do you want to leave current project ?", "New project",
                              BoxIcon::Question, BoxButtons::OkCancel);
    boxes.Expect(question, Answer::Cancel).Expect(question, Answer::Ok);
    EXPECT_FALSE(NewProject(*project, boxes));
    EXPECT_EQ(State(), "mine.iv|two taps, one pump");
    EXPECT_TRUE(NewProject(*project, boxes));
    EXPECT_EQ(State(), "New project|");
    EXPECT_EQ(project->numtubo, 0);
    EXPECT_EQ(SaveToOwnFile(*project, boxes), std::nullopt) << "the window is needed";
    EXPECT_TRUE(UnsavedText(*project)) << "the table stays, and is worth keeping";
    project->TableRows.fill({});
    project->TableRows[kLastTableRow + 1].EndPoint = 1;
    EXPECT_EQ(UnsavedText(*project), std::nullopt) << "slots beyond those in use do not count";
}

TEST_F(FileCommands, WhatIsLeftUnsavedIsKept) {
    const fs::path copy = folder / kUnsavedFile;
    EXPECT_EQ(*KeepUnsaved({}, folder.Path()), "");
    const auto first = UnsavedText(*project);
    EXPECT_NE(KeepUnsaved(first, folder / "absent").Error().find("No such file"),
              std::string::npos);
    EXPECT_EQ(*KeepUnsaved(first, folder.Path()), "Unsaved work is kept in " + copy.string());
    const auto again = NewTestProject();
    EXPECT_TRUE(ReadProjectText(FileBytes(copy), *again));
    EXPECT_EQ(again->numtubo, 4);
    project->FlowUnknown[1] = true;
    ASSERT_TRUE(Confirm(FilePurpose::Save, "plant").done);
    project->Pipes[1].FlowRate += 1;
    EXPECT_EQ(UnsavedText(*project), std::nullopt) << "its own file holds all that was typed";
    project->Pipes[1].Length += 1;
    const auto second = UnsavedText(*project);
    for (int times = 0; times < 2; ++times) EXPECT_NE(*KeepUnsaved(second, folder.Path()), "");
    EXPECT_EQ(FileBytes(copy), second);
    EXPECT_EQ(FileBytes(copy.string() + "~"), first) << "the same again leaves the one before";
    EXPECT_TRUE(IsUnsavedCopy(copy.string() + "~", folder.Path()));
    EXPECT_FALSE(IsUnsavedCopy(project->ProjectName, folder.Path()));
}

}  // namespace
}  // namespace idrova
