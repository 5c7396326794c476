// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>
#include <string>
#include <vector>

#include "support/temp_folder.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;

int EntriesOf(const fs::path& folder) {
    return static_cast<int>(std::distance(fs::directory_iterator(folder), {}));
}

/// Saves in a child process after `prepare` has run there. True when saving reports success.
bool SavesInChild(const fs::path& path, std::string_view bytes,
                  const std::function<bool()>& prepare) {
    constexpr int unprepared = 2;
    const pid_t child = ::fork();
    if (child == 0) {
        if (!prepare()) ::_exit(unprepared);
        ::_exit(WriteWholeFile(path, bytes) ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) != unprepared);
    return WEXITSTATUS(status) == 0;
}

/// Files can grow to `limit` bytes only, as on a full disk.
bool SavesWithinLimit(const fs::path& path, std::string_view bytes, std::size_t limit) {
    return SavesInChild(path, bytes, [limit] {
        const rlimit room = {limit, limit};
        return ::signal(SIGXFSZ, SIG_IGN) != SIG_ERR && ::setrlimit(RLIMIT_FSIZE, &room) == 0;
    });
}

/// Permissions do not bind the superuser, so it takes another identity.
bool SavesAsPlainUser(const fs::path& path, std::string_view bytes) {
    constexpr uid_t nobody = 65534;
    return SavesInChild(path, bytes, [] { return ::geteuid() != 0 || ::setuid(nobody) == 0; });
}

TEST(WriteWholeFile, KeepsTheOldFileWhenTheDiskIsFull) {
    const TempFolder folder;
    const fs::path path = folder / "plant.iv";
    const std::string old = "the old content";
    const std::string fresh(200, 'x');
    PutFile(path, old);
    for (std::size_t limit = 0; limit < fresh.size(); ++limit) {
        ASSERT_FALSE(SavesWithinLimit(path, fresh, limit)) << limit;
        ASSERT_EQ(FileBytes(path), old) << limit;
    }
    EXPECT_EQ(EntriesOf(folder.Path()), 1);
    EXPECT_TRUE(SavesWithinLimit(path, fresh, fresh.size()));
    EXPECT_EQ(FileBytes(path), fresh);
}

TEST(WriteWholeFile, RefusesWhatCannotBeReplaced) {
    const TempFolder folder;
    PutFile(folder / "file", "kept");
    fs::create_directory(folder / "folder");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    fs::create_symlink("ring", folder / "ring");
    const std::vector<std::pair<fs::path, const char*>> cases = {
        {folder / "folder", "is a folder"},
        {folder / "pipe", "is not a file"},
        {folder / "absent" / "file", "No such file or directory"},
        {folder / "file" / "below", "Not a directory"},
        {folder / std::string(300, 'n'), "File name too long"},
        {folder / "ring", "Too many levels of symbolic links"},
    };
    for (const auto& [path, reason] : cases) {
        const Status written = WriteWholeFile(path, "new");
        ASSERT_FALSE(written) << path;
        EXPECT_NE(written.Error().find(reason), std::string::npos) << written.Error();
    }
    EXPECT_EQ(FileBytes(folder / "file"), "kept");
    EXPECT_EQ(EntriesOf(folder.Path()), 4) << "nothing is left behind";
}

TEST(WriteWholeFile, HeedsPermissions) {
    const TempFolder folder;
    fs::permissions(folder.Path(), fs::perms::all);
    PutFile(folder / "file", "kept");
    fs::permissions(folder / "file", fs::perms{0444});
    EXPECT_FALSE(SavesAsPlainUser(folder / "file", "new"));
    EXPECT_EQ(FileBytes(folder / "file"), "kept");
    EXPECT_TRUE(SavesAsPlainUser(folder / "born", "new"));

    fs::permissions(folder.Path(), fs::perms{0555});
    EXPECT_FALSE(SavesAsPlainUser(folder / "later", "new"));
    fs::permissions(folder.Path(), fs::perms::owner_all);
    EXPECT_EQ(EntriesOf(folder.Path()), 2);
}

TEST(WriteWholeFile, FollowsLinksAndKeepsThem) {
    const TempFolder folder;
    fs::create_directory(folder / "real");
    PutFile(folder / "real" / "file", "old");
    fs::create_symlink("real/file", folder / "near");
    fs::create_symlink(folder / "near", folder / "far");
    fs::create_symlink("real/other", folder / "dangling");
    EXPECT_TRUE(WriteWholeFile(folder / "far", "new"));
    EXPECT_TRUE(WriteWholeFile(folder / "dangling", "born"));
    EXPECT_EQ(FileBytes(folder / "real" / "file"), "new");
    EXPECT_EQ(FileBytes(folder / "real" / "other"), "born");
    EXPECT_TRUE(fs::is_symlink(folder / "near") && fs::is_symlink(folder / "dangling"));
}

TEST(WriteWholeFile, KeepsPermissionsAndTakesTheLongestName) {
    const TempFolder folder;
    const fs::path born = folder / std::string(255, 'n');
    PutFile(folder / "old", "");
    fs::permissions(folder / "old", fs::perms{0640});
    const mode_t mask = ::umask(022);
    EXPECT_TRUE(WriteWholeFile(folder / "old", "new"));
    EXPECT_TRUE(WriteWholeFile(born, "new"));
    ::umask(mask);
    EXPECT_EQ(fs::status(folder / "old").permissions(), fs::perms{0640});
    EXPECT_EQ(fs::status(born).permissions(), fs::perms{0644});
}

TEST(WriteWholeFile, KeepsOnePreviousVersionWhenAsked) {
    const TempFolder folder;
    const fs::path path = folder / "plant.iv";
    for (const char* content : {"first", "second", "third"}) {
        EXPECT_TRUE(WriteWholeFile(path, content, OldFile::KeptBeside));
    }
    EXPECT_EQ(FileBytes(path), "third");
    EXPECT_EQ(FileBytes(folder / "plant.iv~"), "second");
    EXPECT_EQ(EntriesOf(folder.Path()), 2);

    // What stands in the way of the previous version must not stop the new one.
    fs::remove(folder / "plant.iv~");
    fs::create_directory(folder / "plant.iv~");
    EXPECT_TRUE(WriteWholeFile(path, "fourth", OldFile::KeptBeside));
    EXPECT_TRUE(fs::is_directory(folder / "plant.iv~"));
}

TEST(ReadWholeFile, TakesRegularFilesUpToALimit) {
    const TempFolder folder;
    const std::string content = std::string(100'000, 'a') + '\0' + "end";
    PutFile(folder / "file", content);
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(*ReadWholeFile(folder / "file", content.size()), content);
    EXPECT_FALSE(ReadWholeFile(folder / "file", content.size() - 1));
    EXPECT_FALSE(ReadWholeFile(folder / "pipe", 100));
    EXPECT_FALSE(ReadWholeFile(folder.Path(), 100));
    EXPECT_FALSE(ReadWholeFile(folder / "absent", 100));
    EXPECT_FALSE(ReadWholeFile("/dev/zero", 100));
}

}  // namespace
}  // namespace idrova
