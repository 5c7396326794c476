// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/pipe_drop.h"

#include <cmath>
#include <numbers>

#include "hydraulics/fluid_density.h"

namespace idrova {
namespace {

constexpr double kRegimeThreshold = 5000;
constexpr int kMaxFrictionPasses = 1000;
constexpr double kFrictionTolerance = 1e-5;

double ExplicitArgument(double reynolds, double relativeRoughness) {
    return 10 / reynolds + 0.2 * relativeRoughness;
}

double InverseSquare(double x) {
    return 1 / (x * x);
}

double ExplicitFactor(double reynolds, double relativeRoughness) {
    return InverseSquare(3.8 * Log10(ExplicitArgument(reynolds, relativeRoughness)));
}

double ColebrookFactor(double reynolds, double relativeRoughness) {
    // The natural logarithm only sets where the iteration starts; it converges all the same.
    double f = InverseSquare(3.8 * std::log(ExplicitArgument(reynolds, relativeRoughness)));
    const double rough = 2 * relativeRoughness;
    const double smooth = 9.35 / reynolds;
    for (int pass = 1; pass <= kMaxFrictionPasses; ++pass) {
        const double next = InverseSquare(3.48 - kPerLog * std::log(rough + smooth / std::sqrt(f)));
        const bool settled = std::abs(f - next) < kFrictionTolerance * f;
        f = (f + next) / 2;
        if (settled) return f;
    }
    return ExplicitFactor(reynolds, relativeRoughness);
}

double MeanVelocity(const Settings& settings, const SectionSize& section, double flow) {
    return flow / (section.area * settings.FluidDensity);
}

double FactorInSection(const Settings& settings, const SectionSize& section, double flow) {
    const double reynolds = ReynoldsNumber(settings, section, flow);
    const double relativeRoughness = settings.Roughness / section.hydraulicDiameter;
    return reynolds < kRegimeThreshold ? ExplicitFactor(reynolds, relativeRoughness)
                                       : ColebrookFactor(reynolds, relativeRoughness);
}

}  // namespace

double Log10(double x) {
    return std::log(x) / std::numbers::ln10;
}

SectionSize SectionGeometry(const Settings& settings, double d1, double d2) {
    double diameter = d1;
    if (settings.SectionType == Section::Rectangular) {
        diameter = 1.3 * std::pow(d1 * d2, 0.625) / std::pow(d1 + d2, 0.25);
    }
    return {kPi * (diameter / 2) * (diameter / 2), diameter};
}

SectionSize SectionOf(const Settings& settings, const PipeRec& pipe) {
    return SectionGeometry(settings, pipe.Diameter, pipe.OuterSize);
}

double ReynoldsNumber(const Settings& settings, const SectionSize& section, double flow) {
    return std::abs(section.hydraulicDiameter * MeanVelocity(settings, section, flow) *
                    settings.FluidDensity / settings.FluidViscosity);
}

double FrictionFactor(const Settings& settings, double d1, double d2, double flow) {
    return FactorInSection(settings, SectionGeometry(settings, d1, d2), flow);
}

double PipeDrop(const Settings& settings, double d1, double d2, double flow, double length,
                double meanPressure) {
    flow = std::abs(flow);
    if (flow == 0) return 0;
    const SectionSize section = SectionGeometry(settings, d1, d2);
    const double f = FactorInSection(settings, section, flow);
    if (settings.EquationType == Equation::Incompressible) {
        const double v = MeanVelocity(settings, section, flow);
        return 2 * f * settings.FluidDensity * v * v * length / section.hydraulicDiameter;
    }
    const double massVelocity = flow / section.area;
    return 2 * f * (length / section.hydraulicDiameter) * massVelocity * massVelocity /
           GasDensity(settings, meanPressure);
}

}  // namespace idrova
