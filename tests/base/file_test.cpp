// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <string>
#include <vector>

#include "support/temp_folder.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

/// Saves in a child process as a plain user, whom permissions bind, with room for files of `room`
/// bytes only, as on a full disk. True when saving reports success.
bool SavesInChild(const fs::path& path, std::string_view bytes, rlim_t room = RLIM_INFINITY) {
    constexpr uid_t nobody = 65534;
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit limit = {room, room};
        ::signal(SIGXFSZ, SIG_IGN);
        const bool plain = ::geteuid() != 0 || ::setuid(nobody) == 0;
        const bool ready = ::setrlimit(RLIMIT_FSIZE, &limit) == 0 && plain;
        ::_exit(ready && WriteWholeFile(path, bytes) ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return status == 0;
}

TEST(WriteWholeFile, KeepsTheOldFileOnAFullDiskAndWithoutPermission) {
    const TempFolder folder;
    const fs::path path = folder / "plant.iv";
    const std::string fresh(200, 'x');
    PutFile(path, "old");
    fs::permissions(path, fs::perms{0666});
    fs::permissions(folder.Path(), fs::perms::all);
    for (std::size_t limit = 0; limit < fresh.size(); ++limit) {
        ASSERT_FALSE(SavesInChild(path, fresh, limit)) << limit;
        ASSERT_EQ(FileBytes(path), "old") << limit;
    }
    EXPECT_TRUE(SavesInChild(path, "x"));
    EXPECT_TRUE(SavesInChild(path, fresh, fresh.size()));
    fs::permissions(path, fs::perms{0444});
    EXPECT_FALSE(SavesInChild(path, "new"));
    fs::permissions(folder.Path(), fs::perms{0555});
    EXPECT_FALSE(SavesInChild(folder / "later", "new"));
    fs::permissions(folder.Path(), fs::perms::owner_all);
    EXPECT_EQ(FileBytes(path), fresh);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), {}), 1) << "nothing is left";
}

TEST(WriteWholeFile, RefusesWhatCannotBeReplaced) {
    const TempFolder folder;
    PutFile(folder / "file", "kept");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    fs::create_symlink("ring", folder / "ring");
    const std::vector<std::pair<fs::path, const char*>> cases = {
        {folder.Path(), "is a folder"},
        {folder / "pipe", "is not a file"},
        {folder / "absent" / "file", "No such file or directory"},
        {folder / std::string(300, 'n'), "File name too long"},
        {folder / "ring", "Too many levels of symbolic links"},
    };
    for (const auto& [path, reason] : cases) {
        const Status written = WriteWholeFile(path, "new");
        ASSERT_FALSE(written) << path;
        EXPECT_NE(written.Error().find(reason), std::string::npos) << written.Error();
    }
}

TEST(WriteWholeFile, FollowsLinksAndKeepsThemAndThePermissions) {
    const TempFolder folder;
    PutFile(folder / "file", "old");
    fs::permissions(folder / "file", fs::perms{0640});
    fs::create_symlink("file", folder / "near");
    fs::create_symlink(folder / "near", folder / "far");
    fs::create_symlink("other", folder / "dangling");
    const mode_t mask = ::umask(022);
    EXPECT_TRUE(WriteWholeFile(folder / "far", "new"));
    EXPECT_TRUE(WriteWholeFile(folder / "dangling", "born"));
    EXPECT_TRUE(WriteWholeFile(folder / std::string(255, 'n'), "the longest name"));
    ::umask(mask);
    EXPECT_EQ(FileBytes(folder / "file") + FileBytes(folder / "other"), "newborn");
    EXPECT_TRUE(fs::is_symlink(folder / "near") && fs::is_symlink(folder / "dangling"));
    EXPECT_EQ(fs::status(folder / "far").permissions(), fs::perms{0640});
    EXPECT_EQ(fs::status(folder / "dangling").permissions(), fs::perms{0644});
}

TEST(WriteWholeFile, KeepsOnePreviousVersionWhenAsked) {
    const TempFolder folder;
    const fs::path path = folder / "plant.iv";
    for (const char* content : {"first", "second", "third"}) {
        EXPECT_TRUE(WriteWholeFile(path, content, OldFile::KeptBeside));
    }
    EXPECT_EQ(FileBytes(path) + FileBytes(folder / "plant.iv~"), "thirdsecond");
    fs::remove(folder / "plant.iv~");
    fs::create_directory(folder / "plant.iv~");
    EXPECT_TRUE(WriteWholeFile(path, "fourth", OldFile::KeptBeside)) << "also without the old one";
}

TEST(ReadWholeFile, TakesRegularFilesUpToALimit) {
    const TempFolder folder;
    const std::string content = std::string(100'000, 'a') + '\0' + "end";
    PutFile(folder / "file", content);
    EXPECT_EQ(*ReadWholeFile(folder / "file", content.size()), content);
    EXPECT_FALSE(ReadWholeFile(folder / "file", content.size() - 1));
    for (const char* bad : {"", "absent", "/dev/zero"}) {
        EXPECT_FALSE(ReadWholeFile(folder / bad, 100)) << bad;
    }
}

}  // namespace
}  // namespace idrova
