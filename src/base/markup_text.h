// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace idrova {

/// A text as the content, or between double quotes an attribute, of XML and HTML. Bytes that are
/// not UTF-8 are taken as Latin-1; control characters, which XML cannot hold, become blanks.
std::string MarkupText(std::string_view text);

/// One field of a CSV line: in double quotes, theirs doubled, when it holds a comma, a quote or a
/// line break.
std::string CsvField(std::string_view text);

}  // namespace idrova
