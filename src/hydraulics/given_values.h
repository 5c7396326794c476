// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "hydraulics/network_plan.h"
#include "hydraulics/note.h"

namespace idrova {

/// Where the given values of a network are wrong in number. An open end takes one value, its
/// pressure or the flow of its pipe; a point where the flow goes on takes none.

/// Every open end that has none.
std::vector<Note> MissingValues(const NetworkPlan& plan, const WorkNetwork& work);

/// Every given value for which no open end is left.
std::vector<Note> SurplusValues(const NetworkPlan& plan, const WorkNetwork& work);

}  // namespace idrova
