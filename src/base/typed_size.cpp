// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/typed_size.h"

#include "base/number_text.h"

namespace idrova {

std::string TypedSize(std::string_view text, bool& negative) {
    negative = ReadNumber(text) < 0 || (negative && text.starts_with('0'));
    return negative ? "0" : std::string(text);
}

}  // namespace idrova
