// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "model/project.h"

namespace idrova {

/// The pipe that a cell tells of: the one that crosses it or ends in it, of several the lowest.
/// 0 when there is none, or a component.
int PipeUnder(const Project& project, int cell);

/// What a tip says of a cell: the component's name, or the pipe's number, size and length; empty
/// when neither is there.
std::string HoverText(const Project& project, int cell);

/// The line that is added when the pipe's flow is computed: kg/h and m/s.
std::string HoverFlow(double kgPerSecond, double metresPerSecond);

}  // namespace idrova
