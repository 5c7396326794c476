// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

namespace idrova {

constexpr int kMaxUnknowns = 200;

/// A square system, sparse, that is filled again and again with the same coefficients in the same
/// order; rows and unknowns count from 1. Coefficients that fall on one place add up.
class LinearSystem {
  public:
    struct Coefficient {
        int row = 0;
        int unknown = 0;
        double value = 0;
    };

    explicit LinearSystem(int order) : order_(order), rightSide_(Index(order)) {}

    /// Starts the next filling.
    void Clear() {
        filled_ = 0;
        rightSide_.assign(rightSide_.size(), 0.0);
    }

    void Add(int row, int unknown, double value) {
        if (filled_ == coefficients_.size()) coefficients_.emplace_back();
        coefficients_[filled_++] = {row, unknown, value};
    }

    void AddRight(int row, double term) { rightSide_[Index(row - 1)] += term; }

    int Order() const { return order_; }
    const std::vector<Coefficient>& Coefficients() const { return coefficients_; }
    const std::vector<double>& RightSide() const { return rightSide_; }

  private:
    static std::size_t Index(int i) { return static_cast<std::size_t>(i); }

    int order_;
    std::size_t filled_ = 0;
    std::vector<Coefficient> coefficients_;
    std::vector<double> rightSide_;
};

enum class Solve { Solved, Singular };

}  // namespace idrova
