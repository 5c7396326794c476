// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

namespace idrova {

/// A value that was found in another way than the program's, and what the program finds.
struct VerificationCase {
    const char* group = "";
    const char* plant = "";
    const char* source = "";  ///< published, or an expression of the script in the document
    const char* unit = "";
    double expected = 0;
    double computed = 0;      ///< not a number when the run does not settle
    double tolerance = 1e-6;  ///< relative
};

std::vector<VerificationCase> VerificationCases();

}  // namespace idrova
