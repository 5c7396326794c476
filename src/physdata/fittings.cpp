// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/fittings.h"

#include "base/number_text.h"

namespace idrova {

std::vector<FittingCount> FittingsOf(const LossDb& losses) {
    std::vector<FittingCount> fittings;
    for (int slot = 1; slot <= losses.count; ++slot) {
        const LossRecord& loss = losses[slot];
        if (loss.coefficient == 0 || loss.fixedDrop != 0) continue;
        fittings.push_back({loss.name, DecimalDouble(loss.coefficient), 0});
    }
    return fittings;
}

double SumOf(const std::vector<FittingCount>& fittings) {
    double sum = 0;
    for (const FittingCount& fitting : fittings) sum += fitting.count * fitting.coefficient;
    return sum;
}

std::string ListText(const std::vector<FittingCount>& fittings) {
    std::string text;
    for (const FittingCount& fitting : fittings) {
        if (fitting.count == 0) continue;
        if (!text.empty()) text += ", ";
        text += GeneralText(fitting.count) + " x " + fitting.name;
    }
    return text;
}

}  // namespace idrova
