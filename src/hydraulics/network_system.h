// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <vector>

#include "hydraulics/component_law.h"
#include "hydraulics/network_plan.h"
#include "hydraulics/work_network.h"
#include "model/project.h"

namespace idrova {

/// A square system; rows and unknowns count from 1.
struct LinearSystem {
    explicit LinearSystem(int systemOrder)
        : order(systemOrder),
          matrix(static_cast<std::size_t>(systemOrder) * static_cast<std::size_t>(systemOrder)),
          rightSide(static_cast<std::size_t>(systemOrder)) {}

    int order;
    std::vector<double> matrix;     ///< row by row
    std::vector<double> rightSide;  ///< the solution after the solve

    double& At(int row, int unknown) {
        return matrix[Index(row - 1) * Index(order) + Index(unknown - 1)];
    }

  private:
    static std::size_t Index(int i) { return static_cast<std::size_t>(i); }
};

/// Quantities of a pass, per pipe.
struct PassState {
    std::array<double, kMaxPipes + 1> guess{};         ///< Q, kg/s
    std::array<double, kMaxPipes + 1> resistance{};    ///< R = drop / |Q|, Pa s/kg
    std::array<double, kMaxPipes + 1> meanPressure{};  ///< absolute, Pa; used for gases
    /// The sloped row of a component on this pipe is taken at no flow, not at the guess.
    std::array<bool, kMaxPipes + 1> componentIdles{};
};

/// Fills the system for one pass: pipe laws (given flows, then unknown ones linearised with R),
/// known flows, known pressures, continuity at junctions, two rows a component. A given flow
/// counts without its sign: the pipe's `FlowFromPoint` tells its direction.
void AssembleNetworkSystem(const Settings& settings, const NetworkPlan& plan,
                           const WorkNetwork& work, const PassState& state, ComponentRows rows,
                           LinearSystem& system);

}  // namespace idrova
