// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frm_file.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <filesystem>

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

    void OpenWindow(const char* item) {
        Choose(item);
        window = Window("FrmFile");
        ASSERT_NE(window, nullptr);
    }

    QLineEdit& Field(const char* name) { return Child<QLineEdit>(name, window); }

    QStringList Items(const char* name) {
        const auto& list = Child<QListWidget>(name, window);
        QStringList items;
        for (int i = 0; i < list.count(); ++i) items.append(list.item(i)->text());
        return items;
    }

    QPoint ItemPlace(const char* name, const QString& text) {
        const auto& list = Child<QListWidget>(name, window);
        return list.visualItemRect(list.findItems(text, Qt::MatchExactly).at(0)).center();
    }

    void ClickItem(const char* name, const QString& text) {
        QTest::mouseClick(Child<QListWidget>(name, window).viewport(), Qt::LeftButton, {},
                          ItemPlace(name, text));
    }

    void EnterFolder(const QString& text) {
        auto& list = Child<QListWidget>("Dir1", window);
        list.setCurrentItem(list.findItems(text, Qt::MatchExactly).at(0));
        QTest::keyClick(&list, Qt::Key_Return);
    }

    QString Path(const std::string& name) const { return PathToQt(folder / name); }

    ChildWindow* window = nullptr;
};

TEST_F(FileWindow, SavesUnderTheTypedNameAndSavesThereAgain) {
    OpenWindow("Salva");
    EXPECT_EQ(window->windowTitle(), "Idrova - Save project");
    QTest::keyClicks(&Field("Text3"), "plant");
    QTest::keyClicks(&Field("Text4"), "two loops");
    EXPECT_EQ(Field("Text2").text(), Path("plant"));
    QTest::keyClick(&Field("Text4"), Qt::Key_Return);
    EXPECT_EQ(Window("FrmFile"), nullptr);
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [plant]");
    EXPECT_NE(FileBytes(folder / "plant.iv").find("two loops"), std::string::npos);

    program->project.ProjectDescription = "changed";
    boxes.Expect(kOverwriteFile, Answer::No).Expect(kOverwriteFile, Answer::Yes);
    Choose("Salva");
    EXPECT_EQ(FileBytes(folder / "plant.iv").find("changed"), std::string::npos);
    Choose("Salva");
    EXPECT_NE(FileBytes(folder / "plant.iv").find("changed"), std::string::npos);
    EXPECT_NE(FileBytes(folder / "plant.iv~").find("two loops"), std::string::npos);
}

TEST_F(FileWindow, ListsFollowTheFolderAndTheFilter) {
    OpenWindow("Apri");
    EXPECT_EQ(window->windowTitle(), "Idrova - Open project");
    EXPECT_EQ(Items("File1"), QStringList{"old.iv"});
    EXPECT_EQ(Items("Dir1"), (QStringList{"..", "plants"}));
    EnterFolder("plants");
    EXPECT_EQ(Field("Text2").text(), Path("plants"));
    EXPECT_EQ(Items("File1"), QStringList{});
    Field("Text1").setText("*.txt");
    EXPECT_EQ(Items("File1"), QStringList{"notes.txt"});
    Field("Text1").setText("*.iv;*.txt");
    EXPECT_EQ(Items("File1"), QStringList{"notes.txt"});
    EnterFolder("..");
    EXPECT_EQ(Items("Dir1"), (QStringList{"..", "plants"}));
}

TEST_F(FileWindow, DriveLeadsToItsFolders) {
    OpenWindow("Apri");
    auto& drives = Child<QComboBox>("Drive1", window);
    drives.setCurrentText("/");
    Q_EMIT drives.activated(drives.currentIndex());
    EXPECT_EQ(Field("Text2").text(), "/");
    EXPECT_TRUE(Items("Dir1").contains("tmp"));
    EXPECT_FALSE(Items("Dir1").contains(".."));
}

TEST_F(FileWindow, ClickShowsTheDescriptionAndDoubleClickThePath) {
    OpenWindow("Apri");
    ClickItem("File1", "old.iv");
    EXPECT_EQ(Field("Text3").text(), "old.iv");
    EXPECT_EQ(Field("Text2").text(), Path("old.iv"));
    EXPECT_EQ(Field("Text4").text(), "an old plant");
    Field("Text3").clear();
    QTest::mouseDClick(Child<QListWidget>("File1", window).viewport(), Qt::LeftButton, {},
                       ItemPlace("File1", "old.iv"));
    EXPECT_EQ(Field("Text2").text(), Path("old.iv"));
}

TEST_F(FileWindow, ForbiddenCharacterIsToldAndEmptiesTheName) {
    OpenWindow("Salva2");
    boxes.Expect(kNameNotAllowed);
    QTest::keyClicks(&Field("Text3"), "a/");
    EXPECT_EQ(Field("Text3").text(), "");
}

TEST_F(FileWindow, ConfirmingWithoutANameKeepsTheWindowAndExitClosesIt) {
    OpenWindow("Apri");
    Child<QPushButton>("Command1", window).click();
    EXPECT_NE(Window("FrmFile"), nullptr);
    Child<QPushButton>("Command2", window).setFocus();
    QTest::keyClick(&Child<QPushButton>("Command2", window), Qt::Key_Return);
    EXPECT_EQ(Window("FrmFile"), nullptr);
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [New project]");
}

TEST_F(FileWindow, OpensAndLeavesProjects) {
    program->project.ProjectDescription = "to be found again";
    ASSERT_TRUE(WriteProject(program->project, folder / "saved.iv"));
    program->project.ProjectDescription.clear();
    OpenWindow("Apri");
    ClickItem("File1", "saved.iv");
    Child<QPushButton>("Command1", window).click();
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [saved.iv]");
    EXPECT_EQ(program->project.ProjectName, (folder / "saved.iv").string());
    EXPECT_EQ(program->project.ProjectDescription, "to be found again");
    boxes.Expect(kLeaveProject, Answer::Cancel).Expect(kLeaveProject, Answer::Ok);
    Choose("Nuovo");
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [saved.iv]");
    Choose("Nuovo");
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [New project]");
}

TEST_F(FileWindow, MalformedFileLeavesProjectAndTitle) {
    PutFile(folder / "broken.iv", "2.6.3\r\nnumtubo\r\nmany\r\n");
    boxes.Expect(ProjectMalformed("line 3: item 1 is not a number"));
    mdi->OpenFile(folder / "broken.iv");
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [New project]");
}

TEST(Drives, TheLongestStartOfThePathHoldsTheFolder) {
    const std::vector<std::string> drives{"/", "/home/ann", "/media/ann/stick"};
    EXPECT_EQ(DriveOf("/home/ann/work", drives), "/home/ann");
    EXPECT_EQ(DriveOf("/home/anna", drives), "/");
    EXPECT_EQ(DriveOf("/media/ann/stick", drives), "/media/ann/stick");
}

}  // namespace
}  // namespace idrova
