// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_file.h"

#include <QListWidget>

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
    fs::create_directory(folder / "taken.iv");
    boxes.Expect(kNameNotAllowed)
        .Expect(SaveFailed((folder / "taken.iv").string() + " is a folder"));
    Walk(R"(
        Salva>FrmFile # FrmFile Command1 # Idrova - Save project|Save
        Text3=a/ # Text3 #
        Text3=taken;Text4=two loops;Text4!;Salva2 # Text3 Text4 # taken|two loops # all stays
        Text3=plant # Text2 # )" +
         Path("plant") + R"(
        Text4! # FrmFile MDI # |Idrova 2.6.3 - [plant])");

    project.ProjectDescription = "changed";
    boxes.Expect(kOverwriteFile, Answer::Yes).Expect(kOverwriteFile, Answer::No);
    Do("Salva");
    EXPECT_NE(FileBytes(folder / "plant.iv").find("changed"), std::string::npos);
    Walk("Salva2>FrmFile;Text3=old;Command1 # MDI Text3 # Idrova 2.6.3 - [plant]|old");
}

TEST_F(FileWindow, ListsFollowTheDriveTheFolderAndTheFilter) {
    Walk(R"(
        Apri>FrmFile # FrmFile File1* Dir1* # Idrova - Open project|old.iv|.. plants
        Text3=own;Dir1!Tab # Text3 # own # the first file of the list is not chosen)");
    ASSERT_TRUE(Child<QWidget>("File1").hasFocus());
    ClickFile("old.iv", Qt::RightButton);
    QApplication::processEvents();
    Walk("# Text2 Text3 Text4 # " + Path("old.iv") + "|old.iv|an old plant");
    EnterFolder(1);
    ASSERT_NE(Window("FrmFile"), nullptr) << "Return in the list of folders opens no file";
    Walk("# Text2 File1* # " + Path("plants/old.iv") + "|");
    for (const char* filter : {"*.txt", "*.iv;*.txt"}) {
        Child<QLineEdit>("Text1").setText(filter);
        EXPECT_EQ(Shown("File1*"), "notes.txt");
    }
    fs::rename(folder / "plants", folder / "moved");
    EnterFolder(0);
    EXPECT_EQ(Shown("Dir1*"), ".. moved");
    fs::remove_all(folder / "moved");
    boxes.Expect(FolderUnreadable((folder / "moved").string()));
    EnterFolder(1);
    EXPECT_EQ(Shown("Dir1*"), "..");
    auto& drives = Child<QComboBox>("Drive1");
    const auto enterDrive = [&drives](const QString& drive) {
        drives.setCurrentText(drive);
        Q_EMIT drives.activated(drives.currentIndex());
    };
    enterDrive("/");
    EXPECT_EQ(Shown("Text2"), "/old.iv");
    EXPECT_TRUE(Shown("Dir1*").contains("tmp") && !Shown("Dir1*").contains(".."));
    enterDrive(PathToQt(folder.Path()));
    EXPECT_EQ(Shown("Text2"), Path("old.iv")) << "the working folder is one of the places";
}

TEST_F(FileWindow, AnotherProjectTakesThePlaceOfTheOpenOne) {
    Do("L1,1;L9,1");
    project.ProjectDescription = "to be found again";
    ASSERT_TRUE(WriteProject(project, folder / "saved.iv"));
    project.ProjectDescription.clear();
    Walk(R"(L2,5;L8,5;R5,5;Text6=3 # Frame3 Text6 # Pipe 2|3
            Apri>FrmFile;Command1 # FrmFile # Idrova - Open project # nothing is chosen yet)");
    ClickFile("saved.iv");
    Do("Command1");
    const std::string unsaved = FileBytes(folder / kUnsavedFile);
    EXPECT_NE(unsaved, "") << "both pipes had not been saved";
    Walk("# message # Unsaved work is kept in " + Path("unsaved.iv") + R"(
            # MDI Frame3 Text6 # Idrova 2.6.3 - [saved.iv]|Pipe|
            # enabled Frame3 #)");
    EXPECT_EQ(project.ProjectDescription, "to be found again");
    EXPECT_EQ(LinesDrawn(), 1);
    project.Pipes[1].Length = 77;
    OpenFile(*mdi, folder / kUnsavedFile);
    EXPECT_EQ(LinesDrawn(), 2) << "not what was open just now";
    EXPECT_EQ(FileBytes(folder / "unsaved.iv~"), unsaved);
    OpenFile(*mdi, folder / "saved.iv");

    Walk("Apri>FrmFile;Command2! # FrmFile #");
    PutFile(folder / "broken.iv", "2.6.3\r\nnumtubo\r\nmany\r\n");
    boxes.Expect(ProjectMalformed("line 3: item 1 is not a number"))
        .Expect(kLeaveProject, Answer::Cancel);
    OpenFile(*mdi, folder / "broken.iv");
    Walk("Nuovo # MDI # Idrova 2.6.3 - [saved.iv]");

    PutFile(folder / "old.iv", "2.4");
    program->table.Set(2, 7, "12");
    boxes.Expect(kFileTooOld);
    OpenFile(*mdi, folder / "old.iv");
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [New project]");
    EXPECT_EQ(LinesDrawn(), 0) << "a refused project leaves an empty drawing";
    EXPECT_EQ(program->table, TableTexts());

    Do("L2,5;L8,5;R5,5;Tabella");
    OpenFile(*mdi, folder / "saved.iv");
    Walk("Grafico # Frame3 # Pipe # opened beside the table, too");
}

TEST_F(FileWindow, SettingsOfTheProjectAreOfferedAndTakenOnlyWhenAsked) {
    ASSERT_TRUE(WriteProject(project, folder / "gas.iv"));
    StoredSettings stored{project.settings, "t4", {.velocity = 2}};
    stored.settings.FluidTemperature = 20;
    stored.settings.Roughness = .002;
    ASSERT_TRUE(WriteSettingsOf(folder / "gas.iv", stored));
    const auto open = [&] { OpenFile(*mdi, folder / "gas.iv"); };
    open();
    EXPECT_TRUE(Shown("SettingsOffer").endsWith("2 mm, temperature 20 °C, limits: velocity 2 m/s"));
    EXPECT_EQ(project.settings.FluidTemperature, 0);
    boxes.Expect(kOverwriteFile, Answer::Yes);
    Walk(R"(Salva # SettingsBar? # 1
            SettingsKeep # SettingsBar? # 0)");
    open();
    Walk(R"(# SettingsBar? # 1 # a save before the choice has left them alone
            SettingsUse # SettingsBar? RoughnessLabel # 0|partially rusty...  2.00E-3)");
    EXPECT_EQ(PresentSettings(*program), stored);
    boxes.Expect(kOverwriteFile, Answer::Yes);
    Do("Rettangolare;Salva;Circolare");
    EXPECT_EQ((*ReadSettingsOf(folder / "gas.iv"))->settings.SectionType, Section::Rectangular);
    open();
    boxes.Expect(kOverwriteFile, Answer::Yes).Expect(kLeaveProject, Answer::Ok);
    Walk("t2;Salva # SettingsBar? # 0 # a setting changed by hand is a choice");
    EXPECT_EQ((*ReadSettingsOf(folder / "gas.iv"))->settings, project.settings);
    open();
    Walk("# SettingsBar? # 0 # they are the present ones");
    PutFile(folder / "gas.settings.json", "{");
    open();
    Walk(R"(# SettingsBar? SettingsUse? # 1|0
            Nuovo # SettingsBar? # 0)");
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
