// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "base/result.h"
#include "hydraulics/compute_network.h"

namespace idrova {

struct Program;

/// What a run needs of the program. Its report is kept as the one to print and put into the
/// results file; `stored` is told how that went.
RunServices ServicesOfRun(Program& program, MessageBoxes& boxes,
                          const std::function<void(const Status&)>& stored);

}  // namespace idrova
