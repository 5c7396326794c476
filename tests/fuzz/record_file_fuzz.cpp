// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstdlib>
#include <iostream>

#include "../support/record_soundness.h"

namespace {

void Require(const std::string& brokenRule) {
    if (brokenRule.empty()) return;
    std::cerr << "broken: " << brokenRule << '\n';
    std::abort();
}

}  // namespace

/// Anything may stand in a database: the good records before its first fault are sound, and
/// survive saving.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(data, data + size);
    Require(idrova::BrokenRule<idrova::FluidRecord>(bytes));
    Require(idrova::BrokenRule<idrova::PumpRecord>(bytes));
    Require(idrova::BrokenRule<idrova::LossRecord>(bytes));
    return 0;
}
