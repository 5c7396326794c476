// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <clocale>
#include <cstdlib>
#include <iostream>
#include <string_view>

namespace idrova {

/// Whether the locale in force writes decimals with a comma, where the run asks for one that does
/// by IDROVA_COMMA_LOCALE; such a run proves nothing otherwise.
inline bool LocaleIsAsAsked() {
    if (std::getenv("IDROVA_COMMA_LOCALE") == nullptr) return true;
    const std::string_view point = std::localeconv()->decimal_point;
    if (point != ",") std::cerr << "The decimal comma is not in force, but \"" << point << "\"\n";
    return point == ",";
}

}  // namespace idrova
