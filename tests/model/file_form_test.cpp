// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/file_form.h"

#include <gtest/gtest.h>

#include <vector>

#include "model/messages.h"
#include "model/project_commands.h"
#include "sample_project.h"
#include "support/scripted_boxes.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

class FileFormTest : public testing::Test {
  protected:
    bool Confirm(FilePurpose purpose, std::string_view name) {
        title.clear();
        FileForm form = StartFileForm(purpose, folder.Path());
        TypeName(form, name, boxes);
        form.Text4 = "typed";
        return ConfirmFileForm(form, *project, boxes, handOvers);
    }
    std::string State() const {
        return project->ProjectName + "|" + project->ProjectDescription + "|" + title;
    }
    std::string Path(std::string_view name) const { return (folder / name).string(); }

    TempFolder folder;
    ScriptedBoxes boxes;
    std::unique_ptr<Project> project = SampleProject();
    std::string title;
    HandOvers handOvers{.ShowTitle = [this](std::string_view name) { title = name; }};
};

TEST_F(FileFormTest, NamesAndFiltersHaveForbiddenCharacters) {
    FileForm form = StartFileForm(FilePurpose::Save, "/home");
    EXPECT_EQ(FileFormCaption(form.purpose), "Idrova - Save project");
    EXPECT_EQ(FileFormCaption(FilePurpose::Open), "Idrova - Open project");
    EXPECT_EQ(form.Text1 + " " + form.Text2, "*.iv /home");
    TypeName(form, "plant", boxes);
    EXPECT_EQ(form.Text2, "/home/plant");
    ChooseFolder(form, "/");
    EXPECT_EQ(form.Text2, "/plant");
    for (const std::string bad : {"a:b", "a;b", "a/b", "a\\b"}) {
        boxes.Expect({"Name not allowed", "Save project"});
        TypeName(form, bad, boxes);
        EXPECT_EQ(form.Text3, "");
        TypeFilter(form, bad);
        EXPECT_EQ(form.pattern, "*.iv");
    }
    TypeFilter(form, "p*");
    EXPECT_EQ(form.pattern, "p*");
    DoubleClickFile(form, "a.iv");
    EXPECT_EQ(form.Text2 + "|" + form.Text3, "/a.iv|");
}

TEST_F(FileFormTest, AClickShowsTheDescription) {
    struct Case {
        std::string_view text, description;
    };
    const std::vector<Case> cases = {
        {kSampleText, "two taps, one pump"},
        {"2.6.3\nProject description\nd\xE9j\xE0 \r\nvu", "d\u00E9j\u00E0 vu"},
        {"2.6.3\r\n", ""},
        {"Project description", ""}};
    for (const auto& c : cases) {
        PutFile(folder / "a.iv", c.text);
        FileForm form = StartFileForm(FilePurpose::Open, folder.Path());
        ClickFile(form, "a.iv", boxes);
        EXPECT_EQ(form.Text2 + "|" + form.Text3, Path("a.iv") + "|a.iv");
        EXPECT_EQ(form.Text4, c.description);
    }
    EXPECT_EQ(DescriptionIn(folder / "none.iv"), "");
}

TEST_F(FileFormTest, SavingAddsTheExtensionAndTakesTheName) {
    EXPECT_FALSE(Confirm(FilePurpose::Save, "")) << "no name: the window stays";
    for (const auto& [name, file] : {std::pair("plant", "plant.iv"), std::pair("b.iv", "b.iv"),
                                     std::pair("plant.IV", "plant.IV.iv")}) {
        EXPECT_TRUE(Confirm(FilePurpose::Save, name));
        EXPECT_EQ(State(), Path(file) + "|typed|" + name);
        EXPECT_EQ(DescriptionIn(folder / file), "typed");
    }
    boxes.Expect(kOverwriteFile, Answer::No);
    EXPECT_EQ(SaveToOwnFile(*project, boxes), SaveOutcome::Declined);
}

TEST_F(FileFormTest, OpeningTakesTheNameUnlessTheFileIsBroken) {
    PutFile(folder / "good.iv", kSampleText);
    PutFile(folder / "cut.iv", "2.6.3\r\n");
    PutFile(folder / "old.iv", " 2.4 ");
    EXPECT_TRUE(Confirm(FilePurpose::Open, "good"));
    EXPECT_EQ(State(), Path("good.iv") + "|two taps, one pump|good");
    boxes.Expect(ProjectMalformed("line 2: the line is missing"));
    EXPECT_TRUE(Confirm(FilePurpose::Open, "cut"));
    EXPECT_EQ(State(), Path("good.iv") + "|two taps, one pump|");
    boxes.Expect({"File does not exist", "Open file", BoxIcon::Information});
    EXPECT_TRUE(Confirm(FilePurpose::Open, "none"));
    EXPECT_EQ(State(), Path("none.iv") + "|typed|none");
    EXPECT_EQ(project->numtubo, 4);
    boxes.Expect(kFileTooOld);
    EXPECT_TRUE(Confirm(FilePurpose::Open, "old"));
    EXPECT_EQ(State(), "New project|typed|New project");
}

TEST_F(FileFormTest, ASaveThatFailsKeepsTheProjectsName) {
    project->ProjectName = "mine.iv";
    std::filesystem::create_directory(folder / "folder.iv");
    boxes.Expect(SaveFailed(Path("folder.iv") + " is a folder"));
    EXPECT_TRUE(Confirm(FilePurpose::Save, "folder"));
    EXPECT_EQ(State(), "mine.iv|two taps, one pump|");
}

TEST_F(FileFormTest, ANewProjectForgetsItsFile) {
    project->ProjectName = "mine.iv";
    const MessageBox question("Do you want to leave current project ?", "New project",
                              BoxIcon::Question, BoxButtons::OkCancel);
    boxes.Expect(question, Answer::Cancel).Expect(question, Answer::Ok);
    EXPECT_FALSE(NewProject(*project, boxes, handOvers));
    EXPECT_EQ(State(), "mine.iv|two taps, one pump|");
    EXPECT_TRUE(NewProject(*project, boxes, handOvers));
    EXPECT_EQ(State(), "New project|two taps, one pump|New project");
    EXPECT_EQ(project->numtubo, 0);
    EXPECT_EQ(SaveToOwnFile(*project, boxes), std::nullopt) << "the window is needed";
}

}  // namespace
}  // namespace idrova
