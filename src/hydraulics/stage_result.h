// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <vector>

#include "hydraulics/component_law.h"
#include "hydraulics/network_plan.h"
#include "model/project.h"

namespace idrova {

/// How well a pipe's law holds in the solution of a pass.
struct PipeResidual {
    double relative = 0;           ///< |drop - linearised drop| / drop
    double meanPressureShift = 0;  ///< of a gas, in the last pass, relative
    bool belowVacuum = false;      ///< of a gas: an end has no absolute pressure left
    bool settled = true;
};

/// What a stage of passes ended with.
struct StageResult {
    ComponentRows rows = ComponentRows::Lagged;
    int passes = 0;
    bool finite = true;     ///< false: the solution holds numbers that are not finite
    bool singular = false;  ///< the last pass met a zero pivot
    bool settled = false;   ///< the solution satisfies every law
    bool balanced = true;   ///< the flows balance at every junction
    double residual = 0;    ///< summed relative residual of the last pass
    std::array<PipeResidual, kMaxPipes + 1> pipes{};
    std::vector<int> unsettledCells;  ///< of components whose law does not hold
    std::vector<double> solution;     ///< by unknown number, slot 0 unused: kg/s and Pa

    double Flow(const NetworkPlan& plan, int pipe) const {
        return solution[plan.flowUnknown[pipe]];
    }
    void SetFlow(const NetworkPlan& plan, int pipe, double flow) {
        solution[plan.flowUnknown[pipe]] = flow;
    }
    double Pressure(const NetworkPlan& plan, int point) const {
        return solution[plan.pressureUnknown[point]];
    }
    void SetPressure(const NetworkPlan& plan, int point, double pressure) {
        solution[plan.pressureUnknown[point]] = pressure;
    }
};

}  // namespace idrova
