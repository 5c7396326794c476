// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "hydraulics/plain_elimination.h"
#include "hydraulics/sparse_solver.h"

namespace idrova {
namespace {

/// The largest misfit of a row, of the sum of its terms.
double Misfit(const LinearSystem& system, const std::vector<double>& x) {
    std::vector<double> misfit = system.RightSide();
    std::vector<double> terms(misfit.size(), 1e-300);
    for (const auto& c : system.Coefficients()) {
        misfit[c.row - 1] -= c.value * x[c.unknown - 1];
        terms[c.row - 1] += std::abs(c.value * x[c.unknown - 1]);
    }
    double largest = 0;
    for (std::size_t i = 0; i < misfit.size(); ++i) {
        largest = std::max(largest, std::abs(misfit[i]) / terms[i]);
    }
    return largest;
}

/// A few coefficients a row, over twelve decades, some places filled twice; every time anew.
TEST(LinearSystems, AreSolvedWithKeptPivotsAndWithout) {
    std::uniform_real_distribution<double> decade(-6, 6);
    for (const int n : {1, 2, 17, 190}) {
        LinearSystem system(n);
        SparseSolver solver;
        std::mt19937 random(3);
        std::vector<double> x;
        for (int time = 0; time < 40; ++time) {
            std::mt19937 places(7);
            system.Clear();
            for (int row = 1; row <= n; ++row) {
                system.Add(row, row % n + 1, std::pow(10, decade(random)));
                for (int k = 0; k < 4; ++k) {
                    system.Add(row, static_cast<int>(places() % n) + 1, decade(random));
                }
                system.AddRight(row, decade(random));
            }
            ASSERT_EQ(solver.Run(system, x), Solve::Solved);
            EXPECT_LT(Misfit(system, x), 1e-9) << n << ", time " << time;
            EXPECT_GT(solver.SmallestPivot(), 0);
            if (time > 2) continue;
            ASSERT_EQ(EliminatePlainly(system, x), Solve::Solved);
            EXPECT_LT(Misfit(system, x), 1e-7) << n << ", plain";
        }
    }
}

LinearSystem TwoByTwo(double a, double b, double c, double d, double right) {
    LinearSystem system(2);
    system.Add(1, 1, a);
    system.Add(1, 2, b);
    if (c != 0) system.Add(2, 1, c);
    if (d != 0) system.Add(2, 2, d);
    system.AddRight(1, 1);
    system.AddRight(2, right);
    return system;
}

TEST(LinearSystems, SingularOnesAreTold) {
    std::vector<double> x;
    for (const double corner : {4.0, 4.0 + 1e-14, 5.0}) {
        SparseSolver solver;
        const Solve expected = corner == 4 ? Solve::Singular : Solve::Solved;
        EXPECT_EQ(solver.Run(TwoByTwo(1, 2, 2, corner, 0), x), expected);
        EXPECT_EQ(EliminatePlainly(TwoByTwo(1, 2, 2, corner, 0), x), expected);
        EXPECT_EQ(solver.SmallestPivot() < 1e-13, corner < 5);
    }
    const LinearSystem emptyRow = TwoByTwo(1, 1, 0, 0, 0);
    EXPECT_EQ(SparseSolver().Run(emptyRow, x), Solve::Singular);
    EXPECT_EQ(EliminatePlainly(emptyRow, x), Solve::Singular);
}

/// Among equal candidates the last in row-major order is the pivot: the others leave rounding.
TEST(LinearSystems, PlainEliminationPivotsOnTheLastOfEquals) {
    std::vector<double> x;
    ASSERT_EQ(EliminatePlainly(TwoByTwo(1, 1, 1, -1, 1e-17), x), Solve::Solved);
    EXPECT_EQ(x[0], 0.5);
    EXPECT_EQ(x[1], 0.5);
}

}  // namespace
}  // namespace idrova
