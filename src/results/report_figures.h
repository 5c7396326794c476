// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hydraulics/work_network.h"
#include "model/project.h"

namespace idrova {

/// What the report derives from the results of one pipe. Infinite or not a number where the pipe
/// has no diameter or length, or the fluid no density or viscosity.
struct PipeFigures {
    float drop = 0;          ///< pressure of the start point less that of the end point, Pa
    float dropPerMetre = 0;  ///< Pa/m
    double speed = 0;        ///< m/s, in the circle of the pipe's diameter, signed as the flow
    double reynolds = 0;     ///< signed as the flow
};

/// The pipe must refer to points of the working network.
PipeFigures FiguresOf(const PipeRec& pipe, const WorkNetwork& work, const Settings& settings);

/// Whether a component stands in the cell and is a pump, or a loss, as `kind` says.
bool HoldsComponent(const CellRec& cell, CellKind kind);

}  // namespace idrova
