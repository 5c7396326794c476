// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/number_text.h"

namespace idrova {

/// Builds lines of text and number items laid out in print zones of 14 columns, ended by carriage
/// return and line feed. A number takes a sign place before and a blank behind it. Items follow
/// each other directly (the ";" of a print statement); `NextZone` is its ",".
class PrintZoneWriter {
  public:
    static constexpr std::size_t kZoneWidth = 14;

    /// `text` is UTF-8; a column is a character, not a byte.
    PrintZoneWriter& Text(std::string_view text);

    PrintZoneWriter& Number(float value) { return Text(StrText(value) + " "); }
    PrintZoneWriter& Number(double value) { return Text(StrText(value) + " "); }
    PrintZoneWriter& Number(int value) { return Text(StrText(value) + " "); }

    /// Blanks up to the next zone. An item that ends on a zone's last column is followed by one
    /// whole empty zone.
    PrintZoneWriter& NextZone();

    PrintZoneWriter& EndLine();

    const std::string& Bytes() const { return bytes_; }

  private:
    std::string bytes_;
    std::size_t column_ = 0;  ///< characters already on the open line
};

}  // namespace idrova
