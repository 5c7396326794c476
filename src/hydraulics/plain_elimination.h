// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "hydraulics/linear_system.h"

namespace idrova {

/// Solves the system by Gauss-Jordan elimination with full pivoting; among equal candidates the
/// last in row-major order is the pivot. `x` holds the solution by unknown, from 0. A pivot that is
/// exactly 0 ends the elimination as singular, with what it had reached in `x`.
Solve EliminatePlainly(const LinearSystem& system, std::vector<double>& x);

}  // namespace idrova
