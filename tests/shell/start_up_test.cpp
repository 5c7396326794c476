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
    ScriptedBoxes boxes;
    CheckScreen(1024, boxes);
    boxes.Expect(kSmallScreen);
    CheckScreen(1023, boxes);
}

TEST(StartUp, FoldersAreThoseBesideTheExecutableBeforeThoseOfTheInstallation) {
    const TempFolder temp;
    const fs::path user = temp / "user";
    const fs::path executable = temp / "bin" / "idrova";
    fs::create_directories(temp / "bin" / "IMG");
    EXPECT_EQ(WorkingFolder(executable, user), temp / "bin");
    EXPECT_EQ(FindShippedFiles(executable).manual, "");
    fs::remove(temp / "bin" / "IMG");
    PutFile(temp / "bin" / "IMG", "not a folder");
    EXPECT_EQ(WorkingFolder(executable, user), user);
    fs::create_directories(temp / "share/idrova/samples");
    fs::create_directories(temp / "share/doc/idrova/IDROVA.PDF");
    EXPECT_EQ(FindShippedFiles(executable).samples, temp / "share/idrova/samples");
    EXPECT_EQ(FindShippedFiles(executable).manual, temp / "share/doc/idrova/IDROVA.PDF");
    fs::create_directories(temp / "bin" / "samples");
    EXPECT_EQ(FindShippedFiles(executable).samples, temp / "bin" / "samples");
}

TEST(StartUp, SamplesAreCopiedAtTheFirstUseAndNeverAgain) {
    const TempFolder temp;
    const fs::path shared = temp / "shared";
    const fs::path folder = temp / "new" / "user folder";
    fs::create_directories(shared / "IMG");
    PutFile(shared / "fluidi.dat", "fluids");
    PutFile(shared / "IMG" / "PERC.ico", "icon");
    ASSERT_TRUE(PrepareWorkingFolder(folder, shared));
    EXPECT_EQ(FileBytes(folder / "fluidi.dat") + FileBytes(folder / "IMG/PERC.ico"), "fluidsicon");
    PutFile(folder / "fluidi.dat", "mine");
    ASSERT_TRUE(PrepareWorkingFolder(folder, shared));
    EXPECT_EQ(FileBytes(folder / "fluidi.dat"), "mine");
    const Status status = PrepareWorkingFolder(folder / "fluidi.dat" / "sub", shared);
    EXPECT_NE(status.Error().find("fluidi.dat/sub"), std::string::npos);
}

}  // namespace
}  // namespace idrova
