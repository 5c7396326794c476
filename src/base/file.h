// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/result.h"

namespace idrova {

enum class OldFile { Dropped, KeptBeside };
enum class Flush { ToDisk, Never };

/// The bytes of a regular file. Fails on a folder, a device, a file that cannot be read, and on
/// one of more than `maxBytes` bytes, which is never held whole.
Result<std::string> ReadWholeFile(const std::filesystem::path& path, std::size_t maxBytes);

/// Puts `bytes` in the place of the file: written beside it, flushed to the disk, renamed. On
/// failure the old file is as it was and nothing is left behind. Keeps the old file's permissions,
/// follows a symbolic link, refuses a folder, a device and a read-only file. `KeptBeside` leaves
/// the previous content as "NAME~". `Never` does not wait for the disk: for content that can be
/// made again when the machine fails in the next seconds.
Status WriteWholeFile(const std::filesystem::path& path, std::string_view bytes,
                      OldFile old = OldFile::Dropped, Flush flush = Flush::ToDisk);

}  // namespace idrova
