// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/pipe_sizes.h"

#include "base/number_text.h"

namespace idrova {

int NominalSizeOf(float diameter) {
    if (diameter == 0) return 0;
    const auto millimetres = static_cast<float>(static_cast<double>(diameter) * 1000);
    for (int size = 1; size <= kNominalSizes; ++size) {
        const double inside = InnerDiameters[static_cast<std::size_t>(size)];
        if (millimetres == static_cast<float>(inside)) return size;
        if (diameter == static_cast<float>(inside / 1000)) return size;
    }
    return 0;
}

std::string InnerDiameterText(int size) {
    if (size < 1 || size > kNominalSizes) return "";
    return GeneralText(InnerDiameters[static_cast<std::size_t>(size)]);
}

}  // namespace idrova
