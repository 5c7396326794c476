// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/result.h"
#include "model/project.h"

namespace idrova {

/// The copy of the project that was left last without being saved, in the working folder; the one
/// before it is kept beside it as "unsaved.iv~".
constexpr std::string_view kUnsavedFile = "unsaved.iv";

/// The text of a project that is about to be left; nothing when it holds neither pipes nor table
/// rows, or when its own file holds the same but for what computing and selecting write.
std::optional<std::string> UnsavedText(const Project& project);

/// Writes the copy once the project has been left, so that the copy before it can be what is
/// opened. Returns what to tell the user: where the copy is, nothing when there was nothing to
/// keep, or why it could not be kept.
Result<std::string> KeepUnsaved(const std::optional<std::string>& text,
                                const std::filesystem::path& folder);

/// True for the copy in the working folder and the one before it, which the next copies replace.
bool IsUnsavedCopy(const std::filesystem::path& path, const std::filesystem::path& folder);

}  // namespace idrova
