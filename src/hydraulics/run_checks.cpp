// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/run_checks.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/number_text.h"
#include "hydraulics/fluid_density.h"
#include "hydraulics/linear_system.h"
#include "hydraulics/messages.h"
#include "hydraulics/pipe_drop.h"

namespace idrova {
namespace {

constexpr double kCoherence = 1e-4;           ///< relative
constexpr double kCoherenceAtRest = 10.1325;  ///< Pa, when the given pressures are equal

bool IsCoherent(const Project& project, const PipeRec& pipe, const PointRec& start,
                const PointRec& end) {
    const double given = static_cast<double>(start.Pressure) - end.Pressure;
    double flow = pipe.FlowRate;
    const double computed =
        pipe.DirectionSign() *
        PipeDrop(project.settings, pipe.Diameter, pipe.OuterSize, flow, pipe.Length,
                 MeanAbsolutePressure(project.settings, start.Pressure, end.Pressure));
    if (given == 0) return std::abs(computed) <= kCoherenceAtRest;
    return std::abs(computed - given) / std::abs(given) <= kCoherence;
}

bool HasZeroSize(const Settings& settings, const PipeRec& pipe) {
    const bool hasSideB = settings.SectionType == Section::Rectangular;
    return pipe.Diameter == 0 || (hasSideB && pipe.OuterSize == 0);
}

}  // namespace

bool FluidIsChosen(const Settings& settings, MessageBoxes& boxes) {
    if (settings.FluidDensity != 0) return true;
    boxes.Show(kSelectAFluid);
    return false;
}

bool GasLawApplies(const Settings& settings, MessageBoxes& boxes) {
    if (settings.EquationType == Equation::Incompressible) return true;
    if (settings.FluidCompressibility == 0) {
        boxes.Show(kNotCompressible);
        return false;
    }
    if (settings.FluidTemperature <= ToSingle(-kCelsiusToKelvin)) {
        boxes.Show(kTooCold);
        return false;
    }
    return true;
}

bool PipeDataAreComplete(const Project& project, const WorkNetwork& work, MessageBoxes& boxes) {
    for (int i = 1; i <= work.WorkPipeCount; ++i) {
        const PipeRec& pipe = work.WorkPipes[i];
        if (!pipe.IsDrawn()) continue;
        if (pipe.Length == 0) {
            boxes.Show(ZeroLength(i));
            return false;
        }
        if (HasZeroSize(project.settings, pipe)) {
            boxes.Show(ZeroDiameter(i));
            return false;
        }
    }
    return true;
}

bool CountsAreBalanced(const NetworkPlan& plan, MessageBoxes& boxes) {
    const int largest = std::max(plan.unknowns, plan.Order());
    if (largest > kMaxUnknowns) {
        boxes.Show(TooManyUnknowns(largest));
    } else if (plan.unknowns > plan.Order()) {
        boxes.Show(UnsolvingSystem(plan.unknowns, plan.equations, plan.knownTerms));
    } else if (plan.unknowns < plan.Order()) {
        boxes.Show(IndefiniteSystem(plan.unknowns, plan.equations, plan.knownTerms));
    } else {
        return true;
    }
    return false;
}

bool GivenDataAreCoherent(const Project& project, const WorkNetwork& work, MessageBoxes& boxes) {
    std::string incoherent;
    for (int i = 1; i <= work.WorkPipeCount; ++i) {
        const PipeRec& pipe = work.WorkPipes[i];
        if (!pipe.IsDrawn() || work.WorkFlowUnknown[i]) continue;
        if (work.WorkPressureUnknown[pipe.StartPoint]) continue;
        if (work.WorkPressureUnknown[pipe.EndPoint]) continue;
        if (IsCoherent(project, pipe, work.WorkPoints[pipe.StartPoint],
                       work.WorkPoints[pipe.EndPoint])) {
            continue;
        }
        incoherent += StrText(i);
    }
    if (incoherent.empty()) return true;
    boxes.Show(IncoherentData(incoherent));
    return false;
}

}  // namespace idrova
