// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/friction_law.h"

#include <cmath>
#include <numbers>

namespace idrova {
namespace {

constexpr double kExplicitEnd = 4950;  ///< Re; narrower, the drop would fall between the two
constexpr double kColebrookStart = 5050;
constexpr double kLastStep = 1e-5;  ///< relative; the step after it is below rounding

/// 1 / sqrt(f) and its derivative by ln(Re).
struct InverseRoot {
    double value;
    double slope;
};

InverseRoot ExplicitRoot(double reynolds, double relativeRoughness) {
    const double viscous = 10 / reynolds;
    const double argument = viscous + 0.2 * relativeRoughness;
    return {-3.8 * Log10(argument), 3.8 / std::numbers::ln10 * viscous / argument};
}

/// Halley's method on x + 4 log10(a + b x) - 3.48: two steps from the explicit formula.
InverseRoot ColebrookRoot(double reynolds, double relativeRoughness) {
    const double a = 2 * relativeRoughness;
    const double b = 9.35 / reynolds;
    double x = ExplicitRoot(reynolds, relativeRoughness).value;
    for (int pass = 0; pass < 20; ++pass) {
        const double argument = a + b * x;
        const double misfit = x + kPerLog * std::log(argument) - 3.48;
        const double pull = kPerLog * b / argument;
        const double first = 1 + pull;
        const double second = -pull * b / argument;
        const double step = misfit / (first - misfit * second / (2 * first));
        x -= step;
        if (std::abs(step) <= kLastStep * x) break;
    }
    const double pull = kPerLog * b / (a + b * x);
    return {x, pull * x / (1 + pull)};
}

/// At a flow that is not 0, by one of the two formulas.
LawAt FormulaLaw(const Settings& settings, const SectionSize& section, double length, double flow,
                 InverseRoot (&formula)(double, double)) {
    const double reynolds = ReynoldsNumber(settings, section, flow);
    const InverseRoot root = formula(reynolds, settings.Roughness / section.hydraulicDiameter);
    const double massVelocity = flow / section.area;
    const double value = 2 * (length / section.hydraulicDiameter) * massVelocity * massVelocity /
                         (root.value * root.value);
    return {value, 2 * value / flow * (1 - root.slope / root.value)};
}

}  // namespace

double FlowAtReynolds(const Settings& settings, const SectionSize& section, double reynolds) {
    return reynolds * settings.FluidViscosity * section.area / section.hydraulicDiameter;
}

LawAt FrictionLaw(const Settings& settings, const SectionSize& section, double length,
                  double flow) {
    const auto flowAt = [&](double re) { return FlowAtReynolds(settings, section, re); };
    const auto formulaAt = [&](double q, InverseRoot (&formula)(double, double)) {
        return FormulaLaw(settings, section, length, q, formula);
    };
    const double q = std::abs(flow);
    const double creeping = flowAt(kCreepingReynolds);
    const double explicitEnd = flowAt(kExplicitEnd);
    const double colebrookStart = flowAt(kColebrookStart);
    LawAt law;
    if (q <= creeping) {
        law.slope = formulaAt(creeping, ExplicitRoot).value / creeping;
        law.value = law.slope * q;
    } else if (q <= explicitEnd) {
        law = formulaAt(q, ExplicitRoot);
    } else if (q < colebrookStart) {
        const double from = formulaAt(explicitEnd, ExplicitRoot).value;
        const double to = formulaAt(colebrookStart, ColebrookRoot).value;
        law.slope = (to - from) / (colebrookStart - explicitEnd);
        law.value = from + law.slope * (q - explicitEnd);
    } else {
        law = formulaAt(q, ColebrookRoot);
    }
    if (flow < 0) law.value = -law.value;
    return law;
}

}  // namespace idrova
