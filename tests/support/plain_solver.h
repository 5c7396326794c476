// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>
#include <vector>

namespace idrova {

/// The elimination as a textbook writes it, three plain loops: what the solver is compared with,
/// bit for bit in the tests and in speed in the benchmarks. False when a pivot is exactly 0.
// NOLINTNEXTLINE(readability-function-cognitive-complexity): one piece, to be seen at a glance
inline bool PlainSolve(std::span<double> a, int order, std::span<double> b) {
    const auto n = static_cast<std::size_t>(order);
    std::vector<int> used(n, 0);
    std::vector<std::size_t> rowIndex(n);
    std::vector<std::size_t> columnIndex(n);
    for (std::size_t i = 0; i < n; ++i) {
        double big = 0;
        std::size_t row = 0;
        std::size_t col = 0;
        for (std::size_t j = 0; j < n; ++j) {
            if (used[j] == 1) continue;
            for (std::size_t k = 0; k < n; ++k) {
                if (used[k] != 0 || !(std::abs(a[j * n + k]) >= big)) continue;
                big = std::abs(a[j * n + k]);
                row = j;
                col = k;
            }
        }
        ++used[col];
        if (row != col) {
            for (std::size_t l = 0; l < n; ++l) std::swap(a[row * n + l], a[col * n + l]);
            std::swap(b[row], b[col]);
        }
        rowIndex[i] = row;
        columnIndex[i] = col;
        if (a[col * n + col] == 0) return false;
        const double pivinv = 1 / a[col * n + col];
        a[col * n + col] = 1;
        for (std::size_t l = 0; l < n; ++l) a[col * n + l] *= pivinv;
        b[col] *= pivinv;
        for (std::size_t ll = 0; ll < n; ++ll) {
            if (ll == col) continue;
            const double d = a[ll * n + col];
            a[ll * n + col] = 0;
            for (std::size_t l = 0; l < n; ++l) a[ll * n + l] -= a[col * n + l] * d;
            b[ll] -= b[col] * d;
        }
    }
    for (std::size_t l = n; l-- > 0;) {
        if (rowIndex[l] == columnIndex[l]) continue;
        for (std::size_t k = 0; k < n; ++k) {
            std::swap(a[k * n + rowIndex[l]], a[k * n + columnIndex[l]]);
        }
    }
    return true;
}

}  // namespace idrova
