// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "base/result.h"

class QObject;

namespace idrova {

/// Starts a program with `file` as its only argument, not through a shell, in the file's folder,
/// and has its window maximised and in front where the desktop lets it. The program has no terminal
/// to read or write, and lives on by itself. When it gives up within a few seconds, as one that
/// needs a terminal does, `gaveUp` is told so in words, if `asker` is still there.
Status StartWithFile(const std::filesystem::path& program, const std::filesystem::path& file,
                     const QObject& asker,
                     const std::function<void(const std::string& words)>& gaveUp);

}  // namespace idrova
