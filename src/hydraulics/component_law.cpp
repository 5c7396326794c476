// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/component_law.h"

#include <algorithm>
#include <cmath>

#include "hydraulics/fluid_density.h"
#include "hydraulics/friction_law.h"
#include "hydraulics/pipe_drop.h"

namespace idrova {
namespace {

double LaggedRise(const CellRec& pump, double q) {
    if (pump.PumpConstant == 0) return pump.Param1 * q * q + pump.Param2;
    return pump.Param1 * q * q + pump.Param2 * q + pump.PumpConstant;
}

double LaggedDrop(const Settings& settings, const CellRec& loss, const PipeRec& pipeA, double q) {
    if (loss.Param2 != 0) return loss.Param2;
    const double area = SectionOf(settings, pipeA).area;
    const double v = q / (settings.FluidDensity * area);
    return loss.Param1 * 0.5 * settings.FluidDensity * v * v;
}

constexpr double kFullDropShare = 0.01;  ///< of the flow at which creeping ends

/// The flow of the highest rise of a falling curve; 0 for one that only falls, or that opens
/// upwards.
double HighestRiseFlow(const CellRec& cell) {
    if (cell.PumpConstant == 0 || !(cell.Param1 < 0)) return 0;
    return std::max(0.0, -static_cast<double>(cell.Param2) / (2.0 * cell.Param1));
}

/// At a flow in the delivery direction.
PressureLaw PumpLaw(const CellRec& cell, double through) {
    const double highest = HighestRiseFlow(cell);
    const double q = std::max(through, highest);
    const double a = cell.Param1;
    const double linear = cell.PumpConstant == 0 ? 0 : cell.Param2;
    const double constant = cell.PumpConstant == 0 ? cell.Param2 : cell.PumpConstant;
    return {(a * q + linear) * q + constant, through < highest ? 0 : 2 * a * q + linear};
}

PressureLaw FixedDropLaw(const Settings& settings, double drop, const PipeRec& pipeA,
                         double through) {
    const double full = FullDropFlow(settings, pipeA);
    if (std::abs(through) >= full) return {std::copysign(drop, drop * through), 0};
    return {drop * through / full, drop / full};
}

PressureLaw CoefficientLaw(const Settings& settings, double coefficient, const PipeRec& pipeA,
                           double through, const ByEndPressures& density) {
    const double area = SectionOf(settings, pipeA).area;
    const double perFlow = coefficient / 2 * std::abs(through) / (area * area * density.value);
    const double drop = perFlow * through;
    const double byDensity = -drop / density.value;
    return {drop, 2 * perFlow, byDensity * density.byStart, byDensity * density.byEnd};
}

}  // namespace

double LaggedJump(const Settings& settings, const Component& component, const PipeRec& pipeA,
                  double flow) {
    const CellRec& cell = component.record;
    if (!cell.Placed) return 0;
    if (cell.Kind == CellKind::Loss) return LaggedDrop(settings, cell, pipeA, flow);
    return LaggedRise(cell, component.throughSign * flow);
}

bool OpensUpwards(const CellRec& pump) {
    if (!pump.Placed || pump.Kind != CellKind::Pump) return false;
    const bool hasLinearTerm = pump.PumpConstant != 0;
    return pump.Param1 > 0 || (pump.Param1 == 0 && hasLinearTerm && pump.Param2 > 0);
}

double FullDropFlow(const Settings& settings, const PipeRec& pipeA) {
    const SectionSize section = SectionOf(settings, pipeA);
    return kFullDropShare * FlowAtReynolds(settings, section, kCreepingReynolds);
}

PressureLaw ComponentLaw(const Settings& settings, const Component& component, const PipeRec& pipeA,
                         double flow, double start, double end) {
    const CellRec& cell = component.record;
    if (!cell.Placed) return {};
    const double through = component.throughSign * flow;
    PressureLaw law;
    if (cell.Kind == CellKind::Pump) {
        law = PumpLaw(cell, through);
    } else if (cell.Param2 != 0) {
        law = FixedDropLaw(settings, cell.Param2, pipeA, through);
    } else {
        law =
            CoefficientLaw(settings, cell.Param1, pipeA, through, DensityAt(settings, start, end));
    }
    law.byFlow *= component.throughSign;
    return law;
}

}  // namespace idrova
