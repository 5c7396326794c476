// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace idrova {

/// Ends the program, with the place on standard error, when a condition does not hold that only a
/// mistake in the program can break. In every build: wrong numbers are worse than none.
void Assert(bool holds, const char* file = __builtin_FILE(), int line = __builtin_LINE());

}  // namespace idrova
