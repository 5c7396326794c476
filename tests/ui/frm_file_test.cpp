// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frm_file.h"

#include <QListWidget>

#include "main_window.h"
#include "model/messages.h"
#include "model/project_file.h"
#include "ui/drives.h"
#include "ui/qt_text.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

class FileWindow : public MainWindow {
  protected:
    FileWindow() {
        fs::create_directory(folder / "plants");
        PutFile(folder / "plants" / "notes.txt", "not a project");
        PutFile(folder / "old.iv", "2.5\r\nProject description\r\nan old plant\r\n");
    }

    /// The entries of a list, ".. plants".
    QString Items(const char* name) {
        const auto& list = Child<QListWidget>(name);
        QStringList items;
        for (int i = 0; i < list.count(); ++i) items.append(list.item(i)->text());
        return items.join(' ');
    }

    void ClickFile(const QString& text) {
        auto& list = Child<QListWidget>("File1");
        const QPoint place =
            list.visualItemRect(list.findItems(text, Qt::MatchExactly).at(0)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    }

    void EnterFolder(const QString& text) {
        auto& list = Child<QListWidget>("Dir1");
        list.setCurrentItem(list.findItems(text, Qt::MatchExactly).at(0));
        Do("Dir1!");
    }

    QString Path(const std::string& name) const { return PathToQt(folder / name); }
};

TEST_F(FileWindow, SavesUnderTheTypedNameAndSavesThereAgain) {
    Open("Salva", "FrmFile");
    EXPECT_EQ(window->windowTitle(), "Idrova - Save project");
    boxes.Expect(kNameNotAllowed);
    Do("Text3=a/");
    EXPECT_EQ(Shown("Text3"), "");
    Do("Text3=plant;Text4=two loops");
    EXPECT_EQ(Shown("Text2"), Path("plant"));
    Do("Text4!");
    EXPECT_EQ(Window("FrmFile"), nullptr);
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [plant]");
    EXPECT_NE(FileBytes(folder / "plant.iv").find("two loops"), std::string::npos);

    project.ProjectDescription = "changed";
    boxes.Expect(kOverwriteFile, Answer::No).Expect(kOverwriteFile, Answer::Yes);
    Choose("Salva");
    EXPECT_EQ(FileBytes(folder / "plant.iv").find("changed"), std::string::npos);
    Choose("Salva");
    EXPECT_NE(FileBytes(folder / "plant.iv").find("changed"), std::string::npos);
    EXPECT_NE(FileBytes(folder / "plant.iv~").find("two loops"), std::string::npos);
}

TEST_F(FileWindow, ListsFollowTheDriveTheFolderAndTheFilter) {
    Open("Apri", "FrmFile");
    EXPECT_EQ(window->windowTitle(), "Idrova - Open project");
    EXPECT_EQ(Items("File1") + "|" + Items("Dir1"), "old.iv|.. plants");
    ClickFile("old.iv");
    EXPECT_EQ(Shown("Text2 Text3 Text4"), Path("old.iv") + "|old.iv|an old plant");
    Do("Text3=");
    EnterFolder("plants");
    EXPECT_EQ(Shown("Text2"), Path("plants"));
    EXPECT_EQ(Items("File1"), "");
    for (const char* filter : {"*.txt", "*.iv;*.txt"}) {
        Child<QLineEdit>("Text1").setText(filter);
        EXPECT_EQ(Items("File1"), "notes.txt");
    }
    EnterFolder("..");
    EXPECT_EQ(Items("Dir1"), ".. plants");
    auto& drives = Child<QComboBox>("Drive1");
    drives.setCurrentText("/");
    Q_EMIT drives.activated(drives.currentIndex());
    EXPECT_EQ(Shown("Text2"), "/");
    EXPECT_TRUE(Items("Dir1").contains("tmp"));
    EXPECT_FALSE(Items("Dir1").contains(".."));
}

TEST_F(FileWindow, OpensAndLeavesProjects) {
    project.ProjectDescription = "to be found again";
    ASSERT_TRUE(WriteProject(project, folder / "saved.iv"));
    project.ProjectDescription.clear();
    Open("Apri", "FrmFile");
    Do("Command1");
    ASSERT_NE(Window("FrmFile"), nullptr) << "nothing is chosen yet";
    ClickFile("saved.iv");
    Do("Command1");
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [saved.iv]");
    EXPECT_EQ(project.ProjectName, (folder / "saved.iv").string());
    EXPECT_EQ(project.ProjectDescription, "to be found again");
    Open("Apri", "FrmFile");
    Child<QWidget>("Command2").setFocus();
    Do("Command2!");
    EXPECT_EQ(Window("FrmFile"), nullptr);
    PutFile(folder / "broken.iv", "2.6.3\r\nnumtubo\r\nmany\r\n");
    boxes.Expect(ProjectMalformed("line 3: item 1 is not a number"));
    mdi->OpenFile(folder / "broken.iv");
    boxes.Expect(kLeaveProject, Answer::Cancel).Expect(kLeaveProject, Answer::Ok);
    Choose("Nuovo");
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [saved.iv]");
    Choose("Nuovo");
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [New project]");
}

TEST_F(FileWindow, ARefusedOldProjectLeavesNothingOfTheTable) {
    PutFile(folder / "old.iv", "2.4");
    program->table.Set(2, 7, "12");
    boxes.Expect(kFileTooOld);
    mdi->OpenFile(folder / "old.iv");
    EXPECT_EQ(program->table, TableTexts());
}

TEST(Drives, TheLongestStartOfThePathHoldsTheFolder) {
    const std::vector<std::string> drives{"/", "/home/ann", "/media/ann/stick"};
    EXPECT_EQ(DriveOf("/home/ann/work", drives), "/home/ann");
    EXPECT_EQ(DriveOf("/home/anna", drives), "/");
    EXPECT_EQ(DriveOf("/media/ann/stick", drives), "/media/ann/stick");
}

}  // namespace
}  // namespace idrova
