// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <vector>

#include "results/network_results.h"

namespace idrova {

/// What a run found for the placed pumps of this name.
std::vector<ComponentResult> WorkingPoints(const WorkNetwork& results, std::string_view pump);

}  // namespace idrova
