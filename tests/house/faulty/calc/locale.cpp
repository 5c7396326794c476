// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/rows.h"
double ReadFactor(const char* text) {
    return std::strtod(text, nullptr);
}
