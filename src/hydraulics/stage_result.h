// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <vector>

#include "hydraulics/network_plan.h"

namespace idrova {

/// Flows (kg/s) and pressures (Pa, as the project holds them) by unknown number, slot 0 unused.
struct Solution {
    std::vector<double> values;

    double Flow(const NetworkPlan& plan, int pipe) const { return values[plan.flowUnknown[pipe]]; }
    double Pressure(const NetworkPlan& plan, int point) const {
        return values[plan.pressureUnknown[point]];
    }
    bool IsFinite() const;  ///< every value can be stored as a single
};

/// How well a pipe's law holds.
struct PipeResidual {
    double relative = 0;       ///< misfit over the largest drop in the network
    double drop = 0;           ///< by friction and its own losses, Pa, not negative
    bool belowVacuum = false;  ///< of a gas: its mean pressure is at the bound, or an end has no
                               ///< absolute pressure left
    bool settled = true;
};

struct UnsettledComponent {
    int cell = 0;
    double relative = 0;  ///< misfit over the largest drop in the network
};

/// What a run ended with, held against the laws.
struct StageResult {
    std::array<int, 2> passes{};  ///< of the first stage, of the closing stage
    bool stopped = false;         ///< between two passes: there is no solution
    bool finite = true;           ///< false: the solution holds numbers that are not finite
    bool singular = false;        ///< the equations have no single solution
    bool settled = false;         ///< the solution satisfies every law
    bool balanced = true;         ///< the flows balance at every junction
    double residual = 0;          ///< sum of the pipes' relative misfits
    double largestDrop = 0;       ///< of a pipe, Pa
    std::array<PipeResidual, kMaxPipes + 1> pipes{};
    std::vector<UnsettledComponent> unsettledComponents;  ///< the worst first
    Solution solution;

    double Flow(const NetworkPlan& plan, int pipe) const { return solution.Flow(plan, pipe); }
    void SetFlow(const NetworkPlan& plan, int pipe, double flow) {
        solution.values[plan.flowUnknown[pipe]] = flow;
    }
    double Pressure(const NetworkPlan& plan, int point) const {
        return solution.Pressure(plan, point);
    }
};

}  // namespace idrova
