// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/run_checks.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "hydraulics/fluid_density.h"
#include "hydraulics/linear_system.h"
#include "hydraulics/loose_part.h"
#include "hydraulics/pipe_drop.h"
#include "hydraulics/pipe_law.h"

namespace idrova {
namespace {

constexpr double kCoherence = 1e-4;           ///< relative
constexpr double kCoherenceAtRest = 10.1325;  ///< Pa, when the given pressures are equal

bool IsCoherent(const Settings& settings, const PipeRec& pipe, const PointRec& start,
                const PointRec& end) {
    const double given = static_cast<double>(start.Pressure) - end.Pressure;
    const double computed =
        pipe.DirectionSign() *
        DropWithLosses(settings, pipe, pipe.FlowRate,
                       MeanPressureAt(settings, start.Pressure, end.Pressure).value);
    if (given == 0) return std::abs(computed) <= kCoherenceAtRest;
    return std::abs(computed - given) / std::abs(given) <= kCoherence;
}

bool HasNoSize(const Settings& settings, const PipeRec& pipe) {
    const bool hasSideB = settings.SectionType == Section::Rectangular;
    return pipe.Diameter <= 0 || (hasSideB && pipe.OuterSize <= 0);
}

}  // namespace

std::optional<Refusal> CheckFluid(const Settings& settings) {
    if (settings.FluidDensity == 0) return Refusal{RefusalKind::NoFluid};
    if (settings.FluidDensity < 0) return Refusal{RefusalKind::NegativeDensity};
    if (settings.FluidViscosity == 0) return Refusal{RefusalKind::NoViscosity};
    if (settings.FluidViscosity < 0) return Refusal{RefusalKind::NegativeViscosity};
    if (settings.EquationType == Equation::Incompressible) return std::nullopt;
    if (settings.FluidCompressibility == 0) return Refusal{RefusalKind::NotCompressible};
    if (settings.FluidTemperature > ToSingle(-kCelsiusToKelvin)) return std::nullopt;
    return Refusal{RefusalKind::TooCold};
}

std::optional<Refusal> CheckPipeData(const Settings& settings, const WorkNetwork& work) {
    for (const auto [i, pipe] : DrawnPipes(work)) {
        if (pipe.Length <= 0) return Refusal{RefusalKind::ZeroLength, {i}};
        if (HasNoSize(settings, pipe)) return Refusal{RefusalKind::ZeroDiameter, {i}};
    }
    return std::nullopt;
}

std::optional<Refusal> CheckCounts(const NetworkPlan& plan) {
    Refusal refusal{
        RefusalKind::TooManyUnknowns, {}, plan.unknowns, plan.equations, plan.knownTerms};
    if (std::max(plan.unknowns, plan.Order()) > kMaxUnknowns) return refusal;
    if (plan.unknowns == plan.Order()) return std::nullopt;
    const bool tooFew = plan.unknowns > plan.Order();
    refusal.kind = tooFew ? RefusalKind::TooFewTerms : RefusalKind::TooManyTerms;
    return refusal;
}

std::optional<Refusal> CheckCoherence(const Settings& settings, const WorkNetwork& work) {
    Refusal refusal{RefusalKind::Incoherent};
    for (const auto [i, pipe] : DrawnPipes(work)) {
        if (!IsOverdetermined(work, i)) continue;
        const PointRec& start = work.WorkPoints[pipe.StartPoint];
        const PointRec& end = work.WorkPoints[pipe.EndPoint];
        if (!IsCoherent(settings, pipe, start, end)) refusal.pipes.push_back(i);
    }
    if (refusal.pipes.empty()) return std::nullopt;
    return refusal;
}

}  // namespace idrova
