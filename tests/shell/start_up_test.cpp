// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start_up.h"

#include <gtest/gtest.h>

#include "shell/messages.h"
#include "support/scripted_boxes.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

TEST(StartUp, WarnsOfASmallScreenOnce) {
    RecordedBoxes boxes;
    CheckScreen(1024, boxes);
    EXPECT_TRUE(boxes.shown.empty());
    CheckScreen(1023, boxes);
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown.front(), MessageBox(kSmallScreen));
}

TEST(StartUp, VersionLine) {
    EXPECT_EQ(VersionLine(), "ver. 2.6.3");
}

TEST(StartUp, WorksBesideTheExecutableOnlyWhenTheIconsAreThere) {
    const TempFolder temp;
    const fs::path user = temp / "user";
    EXPECT_EQ(WorkingFolder(temp / "idrova", user), user);
    PutFile(temp / "IMG", "not a folder");
    EXPECT_EQ(WorkingFolder(temp / "idrova", user), user);
    fs::remove(temp / "IMG");
    fs::create_directory(temp / "IMG");
    EXPECT_EQ(WorkingFolder(temp / "idrova", user), temp.Path());
}

class PrepareFolder : public testing::Test {
  protected:
    PrepareFolder() {
        fs::create_directories(shared_ / "IMG");
        PutFile(shared_ / "fluidi.dat", "fluids");
        PutFile(shared_ / "IMG" / "PERC.ico", "icon");
    }

    const TempFolder temp_;
    const fs::path shared_ = temp_ / "shared";
    const fs::path folder_ = temp_ / "new" / "user folder";
};

TEST_F(PrepareFolder, FirstUseCopiesTheSamplesThatAreThere) {
    ASSERT_TRUE(PrepareWorkingFolder(folder_, shared_));
    EXPECT_EQ(FileBytes(folder_ / "fluidi.dat"), "fluids");
    EXPECT_EQ(FileBytes(folder_ / "IMG" / "PERC.ico"), "icon");
    EXPECT_FALSE(fs::exists(folder_ / "pompe.dat"));
}

TEST_F(PrepareFolder, LaterUseKeepsWhatTheUserHas) {
    ASSERT_TRUE(PrepareWorkingFolder(folder_, shared_));
    PutFile(folder_ / "fluidi.dat", "mine");
    fs::remove_all(folder_ / "IMG");
    ASSERT_TRUE(PrepareWorkingFolder(folder_, shared_));
    EXPECT_EQ(FileBytes(folder_ / "fluidi.dat"), "mine");
    EXPECT_FALSE(fs::exists(folder_ / "IMG"));
}

TEST_F(PrepareFolder, FolderThatCanNotBeMadeIsTold) {
    PutFile(temp_ / "file", "in the way");
    const Status status = PrepareWorkingFolder(temp_ / "file" / "folder", shared_);
    ASSERT_FALSE(status);
    EXPECT_NE(status.Error().find("file/folder"), std::string::npos);
}

}  // namespace
}  // namespace idrova
