// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

namespace idrova {

/// Which check has refused a network.
enum class RefusalKind {
    NoFluid,
    NegativeDensity,
    NoViscosity,
    NegativeViscosity,
    NotCompressible,  ///< the compressible equation is chosen for a liquid
    TooCold,          ///< a gas, not above absolute zero
    ZeroLength,       ///< or a negative one, as with the diameter
    ZeroDiameter,
    TooManyUnknowns,
    TooFewTerms,   ///< more unknowns than equations and known terms
    TooManyTerms,  ///< fewer
    Incoherent,    ///< a given flow does not fit the given pressures of its pipe
};

/// Why a network is not computed, in numbers.
struct Refusal {
    RefusalKind kind = RefusalKind::NoFluid;
    std::vector<int> pipes{};  ///< that have no size or are incoherent
    int unknowns = 0;          ///< of the count of the terms, as the other two; else 0
    int equations = 0;
    int knownTerms = 0;

    bool operator==(const Refusal&) const = default;
};

}  // namespace idrova
