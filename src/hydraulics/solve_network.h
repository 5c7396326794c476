// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hydraulics/first_stage.h"

namespace idrova {

/// The flows and pressures of a network whose unknowns and equations balance. The first stage
/// finds the neighbourhood from `start`, the closing stage the solution: from there where that has
/// settled, else from 1 m/s in every pipe; from the other of the two when the one leads nowhere.
/// What is reached is held against the laws. `report` is called after every pass of either stage.
StageResult SolveNetwork(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                         const FlowGuesses& start, const PassReport& report);

}  // namespace idrova
