// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/sparse_solver.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace idrova {
namespace {

constexpr double kFit = 1e-11;  ///< what a row may be off by, of the sum of its terms

/// What brings a largest magnitude to 1.
double ScaleOf(double largest) {
    return largest > 0 && std::isfinite(largest) ? 1 / largest : 1;
}

}  // namespace

SparseSolver::SparseSolver() {
    klu_defaults(&common_);
    common_.scale = -1;  // done here: the pivots of the scaled matrix are asked for
    common_.tol = 1;     // stable pivots before sparse ones
}

SparseSolver::~SparseSolver() {
    Forget();
    klu_free_symbolic(&symbolic_, &common_);
}

Solve SparseSolver::Run(const LinearSystem& system, std::vector<double>& x) {
    if (symbolic_ == nullptr) Order(system);
    Load(system);
    if (symbolic_ == nullptr) return Solve::Singular;
    const bool kept = numeric_ != nullptr && Refactorise();
    if (kept) BackSubstitute(system, x);
    if (kept && Fits()) return Solve::Solved;
    if (!Factorise()) return Solve::Singular;
    BackSubstitute(system, x);
    return Solve::Solved;
}

double SparseSolver::SmallestPivot() const {
    if (numeric_ == nullptr) return 0;
    const auto* pivots = static_cast<const double*>(numeric_->Udiag);
    const auto [smallest, largest] = std::minmax_element(
        pivots, pivots + n_,
        [](double one, double other) { return std::abs(one) < std::abs(other); });
    return *largest == 0 ? 0 : std::abs(*smallest / *largest);
}

void SparseSolver::Order(const LinearSystem& system) {
    const auto& coefficients = system.Coefficients();
    n_ = system.Order();
    std::vector<std::pair<int, int>> places;  // column, row
    places.reserve(coefficients.size());
    for (const auto& c : coefficients) places.emplace_back(c.unknown - 1, c.row - 1);
    std::vector<std::pair<int, int>> taken = places;
    std::ranges::sort(taken);
    taken.erase(std::unique(taken.begin(), taken.end()), taken.end());
    row_.clear();
    place_.clear();
    columnStart_.assign(static_cast<std::size_t>(n_) + 1, 0);
    for (const auto& [column, row] : taken) {
        row_.push_back(row);
        ++columnStart_[static_cast<std::size_t>(column) + 1];
    }
    for (std::size_t i = 1; i < columnStart_.size(); ++i) columnStart_[i] += columnStart_[i - 1];
    for (const auto& place : places) {
        place_.push_back(static_cast<int>(std::ranges::lower_bound(taken, place) - taken.begin()));
    }
    value_.resize(taken.size());
    symbolic_ = klu_analyze(n_, columnStart_.data(), row_.data(), &common_);
}

void SparseSolver::Load(const LinearSystem& system) {
    std::ranges::fill(value_, 0.0);
    for (std::size_t k = 0; k < place_.size(); ++k) {
        value_[place_[k]] += system.Coefficients()[k].value;
    }
    rowScale_.assign(static_cast<std::size_t>(n_), 0);
    for (std::size_t k = 0; k < value_.size(); ++k) {
        rowScale_[row_[k]] = std::max(rowScale_[row_[k]], std::abs(value_[k]));
    }
    for (double& scale : rowScale_) scale = ScaleOf(scale);
    for (std::size_t k = 0; k < value_.size(); ++k) value_[k] *= rowScale_[row_[k]];
    ScaleColumns();
}

void SparseSolver::ScaleColumns() {
    columnScale_.resize(static_cast<std::size_t>(n_));
    for (int column = 0; column < n_; ++column) {
        double largest = 0;
        for (int k = columnStart_[column]; k < columnStart_[column + 1]; ++k) {
            largest = std::max(largest, std::abs(value_[k]));
        }
        columnScale_[column] = ScaleOf(largest);
        for (int k = columnStart_[column]; k < columnStart_[column + 1]; ++k) {
            value_[k] *= columnScale_[column];
        }
    }
}

bool SparseSolver::Factorise() {
    Forget();
    numeric_ = klu_factor(columnStart_.data(), row_.data(), value_.data(), symbolic_, &common_);
    return numeric_ != nullptr && common_.status == KLU_OK;
}

bool SparseSolver::Refactorise() {
    return klu_refactor(columnStart_.data(), row_.data(), value_.data(), symbolic_, numeric_,
                        &common_) != 0 &&
           common_.status == KLU_OK;
}

void SparseSolver::BackSubstitute(const LinearSystem& system, std::vector<double>& x) {
    right_ = system.RightSide();
    for (std::size_t i = 0; i < right_.size(); ++i) right_[i] *= rowScale_[i];
    solution_ = right_;
    klu_solve(symbolic_, numeric_, n_, 1, solution_.data(), &common_);
    x.resize(solution_.size());
    for (std::size_t i = 0; i < x.size(); ++i) x[i] = solution_[i] * columnScale_[i];
}

/// Whether the scaled solution satisfies every row.
bool SparseSolver::Fits() const {
    std::vector<double> misfit = right_;
    std::vector<double> terms(right_.size());
    for (std::size_t i = 0; i < terms.size(); ++i) terms[i] = std::abs(right_[i]);
    for (int column = 0; column < n_; ++column) {
        for (int k = columnStart_[column]; k < columnStart_[column + 1]; ++k) {
            const double term = value_[k] * solution_[column];
            misfit[row_[k]] -= term;
            terms[row_[k]] += std::abs(term);
        }
    }
    for (std::size_t i = 0; i < terms.size(); ++i) {
        if (!(std::abs(misfit[i]) <= kFit * terms[i])) return false;
    }
    return true;
}

void SparseSolver::Forget() {
    if (numeric_ != nullptr) klu_free_numeric(&numeric_, &common_);
    numeric_ = nullptr;
}

}  // namespace idrova
