// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

namespace idrova {

constexpr int kMaxUnknowns = 200;

enum class Inverse { Wanted, NotWanted };
enum class Solve { Solved, Singular };

/// Solves A x = b in place by Gauss-Jordan elimination with full pivoting; among equal candidates
/// the last in row-major order is the pivot. `a` holds `n` x `n` values row by row, `b` `n`, with
/// `n` at most `kMaxUnknowns`. On return `b` holds x, and `a` the inverse when it is wanted (else
/// nothing of use). A pivot that is exactly 0 ends the solve as singular, with `b` unusable and
/// `a` partly transformed.
///
/// Every number that is returned equals the plain elimination's to the last bit, the sign of a
/// zero aside: same pivots, same operations in the same order, less those that multiply by zero
/// and those whose result nothing reads any more.
Solve SolveLinearSystem(std::span<double> a, int n, std::span<double> b,
                        Inverse inverse = Inverse::Wanted);

}  // namespace idrova
