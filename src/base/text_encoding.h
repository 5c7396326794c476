// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace idrova {

/// Texts are UTF-8 in memory and in text files, Latin-1 in the record files.

/// Nothing when `utf8` is not valid UTF-8 or has a character that Latin-1 lacks.
std::optional<std::string> ToLatin1(std::string_view utf8);

/// Never fails.
std::string FromLatin1(std::string_view latin1);

bool IsUtf8(std::string_view bytes);

/// Number of characters; a byte that is no part of valid UTF-8 counts as one.
std::size_t Utf8Length(std::string_view utf8);

}  // namespace idrova
