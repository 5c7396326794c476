// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/linear_solver.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "support/assembled_network.h"
#include "support/plain_solver.h"

namespace idrova {
namespace {

using Values = std::vector<double>;

/// A zero counts without its sign, and one NaN is as good as another.
bool SameBits(const Values& x, const Values& y) {
    return std::ranges::equal(x, y, [](double one, double other) {
        return (std::isnan(one) && std::isnan(other)) ||
               std::bit_cast<std::uint64_t>(one + 0.0) == std::bit_cast<std::uint64_t>(other + 0.0);
    });
}

/// Whether the plain elimination finds a pivot of 0 too; every result has to be the same to the
/// last bit.
bool IsSingular(const Values& a, int n, const Values& b) {
    Values plainA = a;
    Values plainB = b;
    Values inverted = a;
    Values invertedB = b;
    Values solved = a;
    Values solvedB = b;
    const Solve expected = PlainSolve(plainA, n, plainB) ? Solve::Solved : Solve::Singular;
    EXPECT_EQ(SolveLinearSystem(inverted, n, invertedB), expected);
    EXPECT_EQ(SolveLinearSystem(solved, n, solvedB, Inverse::NotWanted), expected);
    EXPECT_TRUE(SameBits(inverted, plainA));
    EXPECT_TRUE(SameBits(invertedB, plainB));
    EXPECT_TRUE(SameBits(solvedB, plainB));
    return expected == Solve::Singular;
}

double Uniform(std::mt19937& random) {
    return std::uniform_real_distribution<double>(-1, 1)(random);
}

/// Up to 10^250 and down to its inverse.
double Scaled(std::mt19937& random) {
    return Uniform(random) * std::pow(10.0, 250 * Uniform(random));
}

/// -1, 0 or 1.
double Tie(std::mt19937& random) {
    return static_cast<double>(random() % 3) - 1;
}

struct Kind {
    const char* name;
    int n;
    std::function<double(std::mt19937&)> entry;
};

const std::vector<Kind> kKinds = {
    {"no unknown", 0, Uniform},
    {"largest", 200, Uniform},
    {"sparse", 90, [](std::mt19937& r) { return r() % 12 == 0 ? Uniform(r) : 0.0; }},
    {"ties", 40, Tie},
    {"ties that leave a pivot of 0", 2, Tie},
    {"wide range", 2, Scaled},
    {"overflowing", 40, Scaled},
    {"all zeros", 7, [](std::mt19937&) { return 0.0; }},
    {"negative zeros", 25, [](std::mt19937& r) { return r() % 2 == 0 ? -0.0 : Uniform(r); }},
};

TEST(LinearSolver, ReturnsWhatThePlainEliminationReturns) {
    int singular = 0;
    for (std::uint32_t seed = 1; seed <= 6; ++seed) {
        std::mt19937 random(seed);
        for (const Kind& kind : kKinds) {
            SCOPED_TRACE(std::string(kind.name) + ", seed " + std::to_string(seed));
            const auto order = static_cast<std::size_t>(kind.n);
            Values a(order * order);
            Values b(order);
            for (double& x : a) x = kind.entry(random);
            for (double& x : b) x = kind.entry(random);
            singular += static_cast<int>(IsSingular(a, kind.n, b));
        }
        for (const auto& [side, consumers] : {std::pair{3, 2}, {6, 9}, {8, 11}}) {
            SCOPED_TRACE("network of side " + std::to_string(side));
            LinearSystem system =
                AssembledNetwork(LoopedNetwork(side, consumers, seed), seed).Assemble();
            EXPECT_FALSE(IsSingular(system.matrix, system.order, system.rightSide));
            std::fill_n(system.matrix.begin(), system.order, 0.0);
            EXPECT_TRUE(IsSingular(system.matrix, system.order, system.rightSide));
        }
    }
    EXPECT_GT(singular, 7);  // not the zeros alone
}

TEST(LinearSolver, SolvesAndInverts) {
    Values a = {0, 2, 1, 1};
    Values b = {4, 5};
    ASSERT_EQ(SolveLinearSystem(a, 2, b), Solve::Solved);
    EXPECT_EQ(b, (Values{3, 2}));
    EXPECT_EQ(a, (Values{-0.5, 1, 0.5, 0}));
}

}  // namespace
}  // namespace idrova
