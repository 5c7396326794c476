// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/print_zones.h"

#include "base/text_encoding.h"

namespace idrova {

PrintZoneWriter& PrintZoneWriter::Text(std::string_view text) {
    bytes_ += text;
    column_ += Utf8Length(text);
    return *this;
}

PrintZoneWriter& PrintZoneWriter::NextZone() {
    const std::size_t next = (column_ / kZoneWidth + 1) * kZoneWidth;
    bytes_.append(next - column_, ' ');
    column_ = next;
    return *this;
}

PrintZoneWriter& PrintZoneWriter::EndLine() {
    bytes_ += "\r\n";
    column_ = 0;
    return *this;
}

}  // namespace idrova
