// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "hydraulics/network_plan.h"
#include "hydraulics/note.h"
#include "hydraulics/stage_result.h"
#include "hydraulics/work_network.h"
#include "model/settings.h"

namespace idrova {

/// What the user should know of the data and the solution: first what has not settled, the worst
/// before the others, last what is only a remark. To be called before the results replace the given
/// values.
std::vector<Note> ResultNotes(const Settings& settings, const NetworkPlan& plan,
                              const WorkNetwork& work, const StageResult& result);

/// On a component, by the place that the headers of the drawing give it: "`what` in column 5, row
/// 6" and then `after`.
Note NoteOnCell(const WorkNetwork& work, int cell, const std::string& what,
                const std::string& after);

/// A share in percent: "3 %", below one percent with two decimals: "0.04 %".
std::string PercentText(double share);

}  // namespace idrova
