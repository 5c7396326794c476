// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/plain_elimination.h"

#include <cmath>
#include <utility>

namespace idrova {
namespace {

class Elimination {
  public:
    Elimination(const LinearSystem& system, std::vector<double>& x)
        : n_(system.Order()), a_(Size(n_) * Size(n_)), b_(x), used_(Size(n_)) {
        b_ = system.RightSide();
        for (const LinearSystem::Coefficient& c : system.Coefficients()) {
            At(c.row - 1, c.unknown - 1) += c.value;
        }
    }

    Solve Run() {
        for (int step = 0; step < n_; ++step) {
            const auto [row, column] = Pivot();
            used_[Size(column)] = true;
            SwapRows(row, column);
            if (At(column, column) == 0) return Solve::Singular;
            Normalise(column);
            for (int other = 0; other < n_; ++other) {
                if (other != column) Subtract(column, other);
            }
        }
        return Solve::Solved;
    }

  private:
    static std::size_t Size(int i) { return static_cast<std::size_t>(i); }
    double& At(int row, int column) { return a_[Size(row) * Size(n_) + Size(column)]; }

    std::pair<int, int> Pivot() {
        std::pair<int, int> place;
        double largest = 0;
        for (int row = 0; row < n_; ++row) {
            if (used_[Size(row)]) continue;
            for (int column = 0; column < n_; ++column) {
                if (used_[Size(column)] || std::abs(At(row, column)) < largest) continue;
                largest = std::abs(At(row, column));
                place = {row, column};
            }
        }
        return place;
    }

    void SwapRows(int one, int other) {
        if (one == other) return;
        for (int column = 0; column < n_; ++column) std::swap(At(one, column), At(other, column));
        std::swap(b_[Size(one)], b_[Size(other)]);
    }

    void Normalise(int row) {
        const double factor = 1 / At(row, row);
        for (int column = 0; column < n_; ++column) At(row, column) *= factor;
        b_[Size(row)] *= factor;
    }

    void Subtract(int pivot, int row) {
        const double factor = At(row, pivot);
        for (int column = 0; column < n_; ++column) {
            At(row, column) -= At(pivot, column) * factor;
        }
        b_[Size(row)] -= b_[Size(pivot)] * factor;
    }

    int n_;
    std::vector<double> a_;
    std::vector<double>& b_;
    std::vector<bool> used_;  ///< columns that have had their pivot, and the rows moved to them
};

}  // namespace

Solve EliminatePlainly(const LinearSystem& system, std::vector<double>& x) {
    return Elimination(system, x).Run();
}

}  // namespace idrova
