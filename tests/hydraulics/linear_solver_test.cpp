// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/linear_solver.h"

#include <gtest/gtest.h>

#include <bit>
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
bool SameBits(double x, double y) {
    return (x != x && y != y) ||
           std::bit_cast<std::uint64_t>(x + 0.0) == std::bit_cast<std::uint64_t>(y + 0.0);
}

bool SameBits(const Values& x, const Values& y) {
    return std::ranges::equal(x, y, [](double one, double other) { return SameBits(one, other); });
}

struct System {
    int n = 0;
    Values a, b;
};

struct Kind {
    const char* name;
    std::function<System(std::mt19937&)> make;
    bool singular = false;
};

double Uniform(std::mt19937& random) {
    return std::uniform_real_distribution<double>(-1, 1)(random);
}

template <typename Entry>
System MakeSystem(int n, Entry entry) {
    System system{n, Values(static_cast<std::size_t>(n * n)), Values(static_cast<std::size_t>(n))};
    for (double& x : system.a) x = entry();
    for (double& x : system.b) x = entry();
    return system;
}

System Dense(std::mt19937& random, int n) {
    return MakeSystem(n, [&] { return Uniform(random); });
}

System Sparse(std::mt19937& random, int n) {
    System system = MakeSystem(n, [&] { return random() % 12 == 0 ? Uniform(random) : 0.0; });
    for (int i = 0; i < n; ++i) system.a[i * n + i] = Uniform(random);
    return system;
}

System Ties(std::mt19937& random, int n) {
    return MakeSystem(n, [&] { return static_cast<double>(random() % 3) - 1; });
}

/// Magnitudes up to 10^`decades` and down to its inverse.
System Scaled(std::mt19937& random, int n, double decades) {
    return MakeSystem(n,
                      [&] { return Uniform(random) * std::pow(10.0, decades * Uniform(random)); });
}

System OfNetwork(std::mt19937& random, int side, int consumers) {
    const auto seed = static_cast<std::uint32_t>(random());
    const LinearSystem system =
        AssembledNetwork(LoopedNetwork(side, consumers, seed), seed).Assemble();
    return {system.order, system.matrix, system.rightSide};
}

System WithZeroRow(System system) {
    const auto order = static_cast<std::size_t>(system.n);
    std::fill_n(&system.a[order * (order / 2)], order, 0.0);
    return system;
}

/// The last row repeats the first; its pivot comes out as an exact zero.
System WithTwinRows(System system) {
    std::copy_n(system.a.begin(), system.n, system.a.end() - system.n);
    return system;
}

const std::vector<Kind> kKinds = {
    {"no unknown", [](std::mt19937& r) { return Dense(r, 0); }},
    {"one unknown", [](std::mt19937& r) { return Dense(r, 1); }},
    {"small network", [](std::mt19937& r) { return OfNetwork(r, 3, 2); }},
    {"network", [](std::mt19937& r) { return OfNetwork(r, 6, 9); }},
    {"largest network", [](std::mt19937& r) { return OfNetwork(r, 8, 11); }},
    {"dense", [](std::mt19937& r) { return Dense(r, 60); }},
    {"largest dense", [](std::mt19937& r) { return Dense(r, 200); }},
    {"sparse", [](std::mt19937& r) { return Sparse(r, 90); }},
    {"ties", [](std::mt19937& r) { return Ties(r, 40); }},
    {"wide range", [](std::mt19937& r) { return Scaled(r, 40, 12); }},
    {"overflowing", [](std::mt19937& r) { return Scaled(r, 40, 300); }},
    {"all zeros", [](std::mt19937&) { return MakeSystem(7, [] { return 0.0; }); }, true},
    {"zero row", [](std::mt19937& r) { return WithZeroRow(OfNetwork(r, 5, 4)); }, true},
    {"twin rows of ties", [](std::mt19937& r) { return WithTwinRows(Ties(r, 30)); }, true},
    {"negative zeros",
     [](std::mt19937& r) {
         return MakeSystem(25, [&] { return r() % 2 == 0 ? -0.0 : Uniform(r); });
     }},
};

TEST(LinearSolver, ReturnsWhatThePlainEliminationReturns) {
    for (const Kind& kind : kKinds) {
        for (std::uint32_t seed = 1; seed <= 6; ++seed) {
            SCOPED_TRACE(std::string(kind.name) + ", seed " + std::to_string(seed));
            std::mt19937 random(seed);
            const System given = kind.make(random);
            System plain = given;
            System inverted = given;
            System solved = given;
            const Solve expected =
                PlainSolve(plain.a, plain.n, plain.b) ? Solve::Solved : Solve::Singular;
            ASSERT_TRUE(expected == Solve::Singular || !kind.singular);
            EXPECT_EQ(SolveLinearSystem(inverted.a, given.n, inverted.b), expected);
            EXPECT_EQ(SolveLinearSystem(solved.a, given.n, solved.b, Inverse::NotWanted), expected);
            EXPECT_TRUE(SameBits(inverted.a, plain.a));
            EXPECT_TRUE(SameBits(inverted.b, plain.b));
            EXPECT_TRUE(SameBits(solved.b, plain.b));
        }
    }
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
