// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <system_error>
#include <vector>

namespace idrova {
namespace {

namespace fs = std::filesystem;

Failure SystemFailure(std::string_view what, const fs::path& path, int error) {
    return {std::string(what) + " " + path.string() + ": " +
            std::generic_category().message(error)};
}

class FileHandle {
  public:
    explicit FileHandle(int descriptor) : descriptor_(descriptor) {}
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    ~FileHandle() { Close(); }

    bool IsOpen() const { return descriptor_ >= 0; }
    int Get() const { return descriptor_; }

    bool Close() {
        const int descriptor = descriptor_;
        descriptor_ = -1;
        return descriptor < 0 || ::close(descriptor) == 0;
    }

  private:
    int descriptor_;
};

bool WriteAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) {
            if (written == 0) errno = ENOSPC;
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// What a new file gets: the old file's permissions, else those of the user's file mask.
mode_t PermissionsFor(const fs::path& path) {
    struct stat status = {};
    if (::stat(path.c_str(), &status) == 0) return status.st_mode & 07777U;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666U & ~mask;
}

void FlushFolder(const fs::path& folder) {
    const FileHandle handle(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (handle.IsOpen()) ::fsync(handle.Get());
}

/// Best effort: a previous version that cannot be kept must not stop the new one from being saved.
void KeepPrevious(const fs::path& path) {
    fs::path previous = path;
    previous += "~";
    std::error_code ignored;
    if (!fs::exists(path, ignored)) return;
    ::unlink(previous.c_str());
    fs::create_hard_link(path, previous, ignored);
    if (ignored) fs::copy_file(path, previous, fs::copy_options::overwrite_existing, ignored);
}

/// Where the content is to go: `path`, or what it leads to as a symbolic link, which need not
/// exist.
Result<fs::path> FollowLinks(fs::path path) {
    constexpr int mostLinks = 40;
    std::error_code error;
    for (int links = 0; links < mostLinks; ++links) {
        if (!fs::is_symlink(path, error)) return path;
        const fs::path next = fs::read_symlink(path, error);
        if (error) return SystemFailure("Cannot write", path, error.value());
        path = path.parent_path() / next;
    }
    return SystemFailure("Cannot write", path, ELOOP);
}

/// Only a regular file may be replaced, and none that is read-only.
Status CheckReplaceable(const fs::path& target) {
    struct stat status = {};
    if (::stat(target.c_str(), &status) != 0) return Done{};
    if (S_ISDIR(status.st_mode)) return Failure{target.string() + " is a folder"};
    if (!S_ISREG(status.st_mode)) return Failure{target.string() + " is not a file"};
    if (::access(target.c_str(), W_OK) == 0) return Done{};
    return SystemFailure("Cannot write", target, errno);
}

/// Pattern of a name beside the target's, never longer than a file system allows.
std::string TemporaryPattern(const fs::path& target) {
    constexpr std::size_t longestStem = 240;
    const std::string stem = target.filename().string();
    return (target.parent_path() / (stem.substr(0, longestStem) + ".XXXXXX")).string();
}

/// Writes, flushes and closes the file that is to take the target's place.
bool Fill(FileHandle& handle, std::string_view bytes, const fs::path& target, Flush flush) {
    return WriteAll(handle.Get(), bytes) && ::fchmod(handle.Get(), PermissionsFor(target)) == 0 &&
           (flush == Flush::Never || ::fsync(handle.Get()) == 0) && handle.Close();
}

}  // namespace

Result<std::string> ReadWholeFile(const fs::path& path, std::size_t maxBytes) {
    const FileHandle handle(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!handle.IsOpen()) return SystemFailure("Cannot open", path, errno);
    struct stat status = {};
    if (::fstat(handle.Get(), &status) != 0) return SystemFailure("Cannot read", path, errno);
    if (!S_ISREG(status.st_mode)) return Failure{path.string() + " is not a file"};

    const Failure tooLarge{path.string() + " is too large"};
    if (static_cast<std::size_t>(status.st_size) > maxBytes) return tooLarge;
    std::string bytes;
    std::vector<char> block(std::size_t{64} * 1024);
    while (true) {
        const ssize_t count = ::read(handle.Get(), block.data(), block.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return SystemFailure("Cannot read", path, errno);
        if (count == 0) return bytes;
        bytes.append(block.data(), static_cast<std::size_t>(count));
        if (bytes.size() > maxBytes) return tooLarge;
    }
}

Status WriteWholeFile(const fs::path& path, std::string_view bytes, OldFile old, Flush flush) {
    const Result<fs::path> target = FollowLinks(path);
    if (!target) return Failure{target.Error()};
    if (Status replaceable = CheckReplaceable(*target); !replaceable) return replaceable;

    std::string temporary = TemporaryPattern(*target);
    FileHandle handle(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!handle.IsOpen()) return SystemFailure("Cannot write", *target, errno);

    bool done = Fill(handle, bytes, *target, flush);
    if (done && old == OldFile::KeptBeside) KeepPrevious(*target);
    done = done && ::rename(temporary.c_str(), target->c_str()) == 0;
    if (!done) {
        const int reason = errno;
        ::unlink(temporary.c_str());
        return SystemFailure("Cannot write", *target, reason);
    }
    if (flush == Flush::ToDisk) {
        FlushFolder(target->has_parent_path() ? target->parent_path() : fs::path("."));
    }
    return Done{};
}

}  // namespace idrova
