// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace idrova {

/// What a box that takes no negative number shows when `text` was typed into it: "0" in the place
/// of a negative number, and while more of that is typed behind it. `negative` holds that from one
/// key to the next; it is to be false when the box is entered.
std::string TypedSize(std::string_view text, bool& negative);

}  // namespace idrova
