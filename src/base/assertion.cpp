// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/assertion.h"

#include <cstdlib>
#include <iostream>

namespace idrova {

void Assert(bool holds, const char* file, int line) {
    if (holds) return;
    std::cerr << file << ':' << line << ": an assertion does not hold\n";
    std::abort();
}

}  // namespace idrova
