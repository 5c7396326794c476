// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_file.h"

#include <QListWidget>
#include <QStatusBar>

#include "drawing_window.h"
#include "physdata/settings_file.h"
#include "projectfile/messages.h"
#include "projectfile/project_file.h"
#include "projectfile/unsaved_copy.h"
#include "ui/kit/drives.h"
#include "ui/kit/qt_text.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

class FileWindow : public DrawingWindow {
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

    void ClickFile(const QString& text, Qt::MouseButton button = Qt::LeftButton) {
        auto& list = Child<QListWidget>("File1");
        const QPoint place =
            list.visualItemRect(list.findItems(text, Qt::MatchExactly).at(0)).center();
        QTest::mouseClick(list.viewport(), button, {}, place);
    }

    void EnterFolder(int row) {
        Child<QListWidget>("Dir1").setCurrentRow(row);
        Do("Dir1!");
    }

    QString Path(const std::string& name) const { return PathToQt(folder / name); }
};

TEST_F(FileWindow, SavesUnderTheTypedNameAndSavesThereAgain) {
    Open("Salva", "FrmFile");
    EXPECT_EQ(window->windowTitle(), "Idrova - Save project");
    boxes.Expect(kNameNotAllowed)
        .Expect(SaveFailed((folder / "taken.iv").string() + " is a folder"));
    Do("Text3=a/");
    EXPECT_EQ(Shown("Text3"), "");
    fs::create_directory(folder / "taken.iv");
    Do("Text3=taken;Text4=two loops;Text4!");
    Choose("Salva2");
    EXPECT_EQ(Shown("Text3 Text4"), "taken|two loops") << "neither failure nor command empties it";
    Do("Text3=plant");
    EXPECT_EQ(Shown("Text2"), Path("plant"));
    Do("Text4!");
    EXPECT_EQ(Window("FrmFile"), nullptr);
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [plant]");

    project.ProjectDescription = "changed";
    boxes.Expect(kOverwriteFile, Answer::Yes).Expect(kOverwriteFile, Answer::No);
    Choose("Salva");
    EXPECT_NE(FileBytes(folder / "plant.iv").find("changed"), std::string::npos);
    Open("Salva2", "FrmFile");
    Do("Text3=old;Command1");
    EXPECT_EQ(mdi->windowTitle() + Shown("Text3"), "Idrova 2.6.3 - [plant]old") << "stays open";
}

TEST_F(FileWindow, ListsFollowTheDriveTheFolderAndTheFilter) {
    Open("Apri", "FrmFile");
    EXPECT_EQ(window->windowTitle(), "Idrova - Open project");
    EXPECT_EQ(Items("File1") + "|" + Items("Dir1"), "old.iv|.. plants");
    Do("Text3=own");
    Child<QWidget>("Dir1").setFocus();
    QTest::keyClick(&Child<QWidget>("Dir1"), Qt::Key_Tab);
    ASSERT_TRUE(Child<QWidget>("File1").hasFocus());
    EXPECT_EQ(Shown("Text3"), "own") << "the first file of the list is not chosen";
    ClickFile("old.iv", Qt::RightButton);
    QApplication::processEvents();
    EXPECT_EQ(Shown("Text2 Text3 Text4"), Path("old.iv") + "|old.iv|an old plant");
    EnterFolder(1);
    ASSERT_NE(Window("FrmFile"), nullptr) << "Return in the list of folders opens no file";
    EXPECT_EQ(Shown("Text2"), Path("plants/old.iv"));
    EXPECT_EQ(Items("File1"), "");
    for (const char* filter : {"*.txt", "*.iv;*.txt"}) {
        Child<QLineEdit>("Text1").setText(filter);
        EXPECT_EQ(Items("File1"), "notes.txt");
    }
    fs::rename(folder / "plants", folder / "moved");
    EnterFolder(0);
    EXPECT_EQ(Items("Dir1"), ".. moved");
    fs::remove_all(folder / "moved");
    boxes.Expect(FolderUnreadable((folder / "moved").string()));
    EnterFolder(1);
    EXPECT_EQ(Items("Dir1"), "..");
    auto& drives = Child<QComboBox>("Drive1");
    drives.setCurrentText("/");
    Q_EMIT drives.activated(drives.currentIndex());
    EXPECT_EQ(Shown("Text2"), "/old.iv");
    EXPECT_TRUE(Items("Dir1").contains("tmp") && !Items("Dir1").contains(".."));
    drives.setCurrentText(PathToQt(folder.Path()));
    Q_EMIT drives.activated(drives.currentIndex());
    EXPECT_EQ(Shown("Text2"), Path("old.iv")) << "the working folder is one of the places";
}

TEST_F(FileWindow, AnotherProjectTakesThePlaceOfTheOpenOne) {
    Draw(1, 1, 9, 1);
    project.ProjectDescription = "to be found again";
    ASSERT_TRUE(WriteProject(project, folder / "saved.iv"));
    project.ProjectDescription.clear();
    Draw(2, 5, 8, 5);
    Select(5, 5);
    Do("Text6=3");
    EXPECT_EQ(Shown("Frame3 Text6"), "Pipe 2|3");
    Open("Apri", "FrmFile");
    Do("Command1");
    ASSERT_NE(Window("FrmFile"), nullptr) << "nothing is chosen yet";
    ClickFile("saved.iv");
    Do("Command1");
    const std::string unsaved = FileBytes(folder / kUnsavedFile);
    EXPECT_NE(unsaved, "") << "both pipes had not been saved";
    EXPECT_EQ(mdi->statusBar()->currentMessage(), "Unsaved work is kept in " + Path("unsaved.iv"));
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [saved.iv]");
    EXPECT_EQ(project.ProjectDescription, "to be found again");
    EXPECT_EQ(LinesDrawn(), 1);
    EXPECT_EQ(Shown("Frame3 Text6") + Enabled("Frame3"), "Pipe|");
    project.Pipes[1].Length = 77;
    OpenFile(*mdi, folder / kUnsavedFile);
    EXPECT_EQ(LinesDrawn(), 2) << "not what was open just now";
    EXPECT_EQ(FileBytes(folder / "unsaved.iv~"), unsaved);
    OpenFile(*mdi, folder / "saved.iv");

    Open("Apri", "FrmFile");
    Child<QWidget>("Command2").setFocus();
    Do("Command2!");
    EXPECT_EQ(Window("FrmFile"), nullptr);
    PutFile(folder / "broken.iv", "2.6.3\r\nnumtubo\r\nmany\r\n");
    boxes.Expect(ProjectMalformed("line 3: item 1 is not a number"))
        .Expect(kLeaveProject, Answer::Cancel);
    OpenFile(*mdi, folder / "broken.iv");
    Choose("Nuovo");
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [saved.iv]");

    PutFile(folder / "old.iv", "2.4");
    program->table.Set(2, 7, "12");
    boxes.Expect(kFileTooOld);
    OpenFile(*mdi, folder / "old.iv");
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [New project]");
    EXPECT_EQ(LinesDrawn(), 0) << "a refused project leaves an empty drawing";
    EXPECT_EQ(program->table, TableTexts());

    Draw(2, 5, 8, 5);
    Select(5, 5);
    Choose("Tabella");
    OpenFile(*mdi, folder / "saved.iv");
    Choose("Grafico");
    EXPECT_EQ(Shown("Frame3"), "Pipe") << "opened beside the table, too";
}

TEST_F(FileWindow, SettingsOfTheProjectAreOfferedAndTakenOnlyWhenAsked) {
    ASSERT_TRUE(WriteProject(project, folder / "gas.iv"));
    StoredSettings stored{project.settings, "t4"};
    stored.settings.FluidTemperature = 20;
    stored.settings.Roughness = .002;
    ASSERT_TRUE(WriteSettingsOf(folder / "gas.iv", stored));
    const auto& bar = Child<QWidget>("SettingsBar");
    const auto open = [&] { OpenFile(*mdi, folder / "gas.iv"); };
    open();
    EXPECT_TRUE(bar.isVisible() &&
                Shown("SettingsOffer").endsWith("roughness 2 mm, temperature 20 °C"));
    EXPECT_EQ(project.settings.FluidTemperature, 0);
    boxes.Expect(kOverwriteFile, Answer::Yes);
    Choose("Salva");
    EXPECT_TRUE(bar.isVisible());
    Do("SettingsKeep");
    EXPECT_FALSE(bar.isVisible());
    open();
    ASSERT_TRUE(bar.isVisible()) << "a save before the choice has left them alone";
    Do("SettingsUse");
    EXPECT_FALSE(bar.isVisible());
    EXPECT_EQ(project.settings, stored.settings);
    EXPECT_EQ(Shown("RoughnessLabel"), "partially rusty...  2.00E-3");
    Choose("Rettangolare");
    boxes.Expect(kOverwriteFile, Answer::Yes);
    Choose("Salva");
    EXPECT_EQ((*ReadSettingsOf(folder / "gas.iv"))->settings.SectionType, Section::Rectangular);
    open();
    EXPECT_FALSE(bar.isVisible()) << "they are the present ones";
    PutFile(folder / "gas.settings.json", "{");
    open();
    EXPECT_TRUE(bar.isVisible() && !Child<QWidget>("SettingsUse").isVisible());
    boxes.Expect(kLeaveProject, Answer::Ok);
    Choose("Nuovo");
    EXPECT_FALSE(bar.isVisible());
}

TEST(Drives, TheLongestStartOfThePathHoldsTheFolder) {
    const auto all = Drives({"", "/", "/samples"});
    EXPECT_EQ(std::ranges::count(all, "/"), 1);
    EXPECT_EQ(std::ranges::count(all, "") + std::ranges::count(all, "/samples"), 1);
    const std::vector<std::string> drives{"/", "/home/ann", "/media/ann/stick"};
    EXPECT_EQ(DriveOf("/home/ann/work", drives), "/home/ann");
    EXPECT_EQ(DriveOf("/home/anna", drives), "/");
    EXPECT_EQ(DriveOf("/media/ann/stick", drives), "/media/ann/stick");
}

}  // namespace
}  // namespace idrova
