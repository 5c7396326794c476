// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "hydraulics/linear_system.h"
#include "hydraulics/network_plan.h"
#include "hydraulics/work_network.h"
#include "model/settings.h"

namespace idrova {

/// Quantities of a pass, per pipe.
struct PassState {
    std::array<double, kMaxPipes + 1> guess{};         ///< Q, kg/s
    std::array<double, kMaxPipes + 1> resistance{};    ///< R = drop / |Q|, Pa s/kg
    std::array<double, kMaxPipes + 1> meanPressure{};  ///< absolute, Pa; used for gases
};

/// Fills the system for one pass: pipe laws (given flows, then unknown ones linearised with R),
/// known flows, known pressures, continuity at junctions, two rows a component. A given flow
/// counts without its sign: the pipe's `FlowFromPoint` tells its direction.
void AssembleNetworkSystem(const Settings& settings, const NetworkPlan& plan,
                           const WorkNetwork& work, const PassState& state, LinearSystem& system);

}  // namespace idrova
