// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>

#include "hydraulics/verification_cases.h"

namespace idrova {
namespace {

TEST(Verification, EveryCaseAgrees) {
    for (const VerificationCase& c : VerificationCases()) {
        EXPECT_NEAR(c.computed, c.expected, c.tolerance * std::abs(c.expected))
            << c.group << ": " << c.plant;
    }
}

}  // namespace
}  // namespace idrova
