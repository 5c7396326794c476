// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/component_law.h"

#include <cmath>

#include "hydraulics/pipe_drop.h"

namespace idrova {
namespace {

/// Value and derivative by the flow `q` in the delivery direction.
PressureJump PumpRise(const CellRec& cell, double q, ComponentRows rows) {
    const bool backwards = rows == ComponentRows::Sloped && q < 0;
    const double flow = backwards ? 0 : q;
    PressureJump rise;
    if (cell.PumpConstant != 0) {
        rise.value = cell.Param1 * flow * flow + cell.Param2 * flow + cell.PumpConstant;
        rise.slope = 2 * cell.Param1 * flow + cell.Param2;
    } else {
        rise.value = cell.Param1 * flow * flow + cell.Param2;
        rise.slope = 2 * cell.Param1 * flow;
    }
    if (backwards) rise.slope = 0;
    return rise;
}

PressureJump LossDrop(const Settings& settings, const CellRec& cell, const PipeRec& pipeA, double q,
                      ComponentRows rows) {
    if (cell.Param2 != 0) return {cell.Param2, 0};
    const double area = SectionGeometry(settings, pipeA.Diameter, pipeA.OuterSize).area;
    const double v = q / (settings.FluidDensity * area);
    const double drop = cell.Param1 * 0.5 * settings.FluidDensity * v * v;
    if (rows == ComponentRows::Lagged || q == 0) return {drop, 0};
    return {q < 0 ? -drop : drop, 2 * drop / std::abs(q)};
}

}  // namespace

PressureJump JumpAt(const Settings& settings, const CellRec& cell, const Component& component,
                    const PipeRec& pipeA, double flow, ComponentRows rows) {
    if (!cell.Placed) return {};
    const double through = component.throughSign * flow;
    PressureJump jump = cell.Kind == CellKind::Pump
                            ? PumpRise(cell, through, rows)
                            : LossDrop(settings, cell, pipeA, through, rows);
    jump.slope *= component.throughSign;
    return jump;
}

}  // namespace idrova
