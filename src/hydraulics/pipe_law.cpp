// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/pipe_law.h"

#include <cmath>

#include "hydraulics/fluid_density.h"
#include "hydraulics/friction_law.h"

namespace idrova {
namespace {

/// Of a coefficient on the velocity in a section, times density, Pa kg/m3.
LawAt LossLaw(double coefficient, double area, double flow) {
    const double massVelocity = flow / area;
    return {coefficient / 2 * massVelocity * std::abs(massVelocity),
            coefficient * std::abs(massVelocity) / area};
}

/// Drop and column weight at `density`; `drop` is the drop times density.
PressureLaw WithColumn(const PipeRec& pipe, const LawAt& drop, const ByEndPressures& density) {
    const int s = pipe.DirectionSign();
    const double column = kGravity * (pipe.Z2 - pipe.Z1);
    const double signedDrop = s * drop.value / density.value;
    const double byDensity = column - signedDrop / density.value;
    return {signedDrop + density.value * column, s * drop.slope / density.value,
            byDensity * density.byStart, byDensity * density.byEnd};
}

}  // namespace

PressureLaw PipeLaw(const Settings& settings, const PipeRec& pipe, double flow, double start,
                    double end) {
    const SectionSize section = SectionOf(settings, pipe);
    const LawAt friction = FrictionLaw(settings, section, pipe.Length, flow);
    const LawAt losses = LossLaw(pipe.LossSum, section.area, flow);
    return WithColumn(pipe, {friction.value + losses.value, friction.slope + losses.slope},
                      DensityAt(settings, start, end));
}

PressureLaw GivenFlowLaw(const Settings& settings, const PipeRec& pipe, double start, double end) {
    const ByEndPressures density = DensityAt(settings, start, end);
    const double drop =
        DropWithLosses(settings, pipe, pipe.FlowRate, MeanPressureAt(settings, start, end).value);
    return WithColumn(pipe, {drop * density.value, 0}, density);
}

double DropWithLosses(const Settings& settings, const PipeRec& pipe, double flow,
                      double meanPressure) {
    const bool gas = settings.EquationType == Equation::Compressible;
    const double density = gas ? GasDensity(settings, meanPressure) : settings.FluidDensity;
    const double area = SectionOf(settings, pipe).area;
    return PipeDrop(settings, pipe.Diameter, pipe.OuterSize, flow, pipe.Length, meanPressure) +
           LossLaw(pipe.LossSum, area, std::abs(flow)).value / density;
}

}  // namespace idrova
