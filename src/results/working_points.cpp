// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/working_points.h"

namespace idrova {

std::vector<ComponentResult> WorkingPoints(const WorkNetwork& results, std::string_view pump) {
    std::vector<ComponentResult> points = ComponentResults(results);
    std::erase_if(points, [pump](const ComponentResult& component) {
        return !component.isPump || component.name != pump;
    });
    return points;
}

}  // namespace idrova
