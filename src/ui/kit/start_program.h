// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include "base/result.h"

namespace idrova {

/// Starts a program with `file` as its only argument, not through a shell, in the file's folder,
/// and has its window maximised and in front where the desktop lets it. The program lives on by
/// itself.
Status StartWithFile(const std::filesystem::path& program, const std::filesystem::path& file);

}  // namespace idrova
