// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <klu.h>

#include <vector>

#include "hydraulics/linear_system.h"

namespace idrova {

/// Solves systems whose coefficients stand in the same places every time, by KLU (Davis, Palamadai
/// Natarajan 2010): orders once, factorises with the pivots of the time before where that solves
/// the equations, else anew. Rows and columns are scaled to a largest coefficient of 1.
class SparseSolver {
  public:
    SparseSolver();
    SparseSolver(const SparseSolver&) = delete;
    SparseSolver& operator=(const SparseSolver&) = delete;
    ~SparseSolver();

    /// `x` holds the solution by unknown, from 0. Singular: a pivot is exactly 0; `x` is then of no
    /// use.
    Solve Run(const LinearSystem& system, std::vector<double>& x);

    /// The smallest pivot of the last factorisation over the largest; 0 when it was singular.
    double SmallestPivot() const;

  private:
    void Order(const LinearSystem& system);
    void Load(const LinearSystem& system);
    void ScaleColumns();
    bool Factorise();
    bool Refactorise();
    void BackSubstitute(const LinearSystem& system, std::vector<double>& x);
    bool Fits() const;
    void Forget();

    int n_ = 0;
    klu_common common_{};
    klu_symbolic* symbolic_ = nullptr;
    klu_numeric* numeric_ = nullptr;
    std::vector<int> columnStart_;
    std::vector<int> row_;
    std::vector<int> place_;  ///< of each coefficient of the system among the values
    std::vector<double> value_;
    std::vector<double> rowScale_, columnScale_;
    std::vector<double> right_, solution_;  ///< of the scaled system
};

}  // namespace idrova
