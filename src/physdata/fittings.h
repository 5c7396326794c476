// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "physdata/losses.h"

namespace idrova {

/// A number of equal fittings of a pipe.
struct FittingCount {
    std::string name;
    double coefficient = 0;
    int count = 0;
};

/// The losses of the database that are given by a coefficient, none of them counted yet.
std::vector<FittingCount> FittingsOf(const LossDb& losses);

/// The sum of the coefficients, each as often as it is counted.
double SumOf(const std::vector<FittingCount>& fittings);

/// "2 x Elbow 90°, 1 x Gate valve"; empty when none is counted.
std::string ListText(const std::vector<FittingCount>& fittings);

}  // namespace idrova
