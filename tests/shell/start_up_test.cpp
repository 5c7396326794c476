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

TEST(StartUp, SamplesAreCopiedAtTheFirstUseAndNeverAgain) {
    const TempFolder temp;
    const fs::path shared = temp / "shared";
    const fs::path folder = temp / "new" / "user folder";
    fs::create_directories(shared / "IMG");
    PutFile(shared / "fluidi.dat", "fluids");
    PutFile(shared / "IMG" / "PERC.ico", "icon");
    ASSERT_TRUE(PrepareWorkingFolder(folder, shared));
    EXPECT_EQ(FileBytes(folder / "fluidi.dat"), "fluids");
    EXPECT_EQ(FileBytes(folder / "IMG" / "PERC.ico"), "icon");
    EXPECT_FALSE(fs::exists(folder / "pompe.dat"));

    PutFile(folder / "fluidi.dat", "mine");
    fs::remove_all(folder / "IMG");
    ASSERT_TRUE(PrepareWorkingFolder(folder, shared));
    EXPECT_EQ(FileBytes(folder / "fluidi.dat"), "mine");
    EXPECT_FALSE(fs::exists(folder / "IMG"));

    const Status status = PrepareWorkingFolder(folder / "fluidi.dat" / "sub", shared);
    ASSERT_FALSE(status);
    EXPECT_NE(status.Error().find("fluidi.dat/sub"), std::string::npos);
}

}  // namespace
}  // namespace idrova
