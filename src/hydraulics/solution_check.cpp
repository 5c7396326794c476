// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/solution_check.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "hydraulics/component_law.h"
#include "hydraulics/fluid_density.h"
#include "hydraulics/friction_law.h"
#include "hydraulics/pipe_law.h"

namespace idrova {
namespace {

constexpr double kOfDrop = 1e-6;  ///< what a law may be off by, of the largest drop
constexpr double kOfHead = 1e-9;  ///< and of the largest head
constexpr double kOfFlow = 1e-9;  ///< what a junction may be off by, of the largest flow

double LargestHead(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                   const Solution& at) {
    double largest = 0;
    for (const auto [i, pipe] : DrawnPipes(work)) {
        const double start = at.Pressure(plan, pipe.StartPoint);
        const double end = at.Pressure(plan, pipe.EndPoint);
        const double weight = DensityAt(settings, start, end).value * kGravity;
        largest = std::max({largest, std::abs(start) + std::abs(weight * pipe.Z1),
                            std::abs(end) + std::abs(weight * pipe.Z2)});
    }
    return largest;
}

class Check {
  public:
    Check(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
          StageResult& result)
        : settings_(settings), plan_(plan), work_(work), result_(result) {}

    void Run() {
        for (const auto [i, pipe] : DrawnPipes(work_)) {
            const double drop = std::abs(Drop(i, pipe));
            result_.pipes[i].drop = drop;
            result_.largestDrop = std::max(result_.largestDrop, drop);
        }
        tolerance_ = kOfDrop * result_.largestDrop +
                     kOfHead * LargestHead(settings_, plan_, work_, result_.solution);
        result_.settled = std::isfinite(result_.largestDrop);
        for (const auto [i, pipe] : DrawnPipes(work_)) CheckPipe(i, pipe);
        for (const Component& component : plan_.components) CheckComponent(component);
        std::ranges::stable_sort(result_.unsettledComponents, std::greater(),
                                 &UnsettledComponent::relative);
        CheckBalance();
    }

  private:
    double Start(const PipeRec& pipe) const { return result_.Pressure(plan_, pipe.StartPoint); }
    double End(const PipeRec& pipe) const { return result_.Pressure(plan_, pipe.EndPoint); }

    PressureLaw LawOf(int i, const PipeRec& pipe) const {
        if (!work_.WorkFlowUnknown[i]) {
            return GivenFlowLaw(settings_, pipe, Start(pipe), End(pipe));
        }
        return PipeLaw(settings_, pipe, result_.Flow(plan_, i), Start(pipe), End(pipe));
    }

    double Drop(int i, const PipeRec& pipe) const {
        const double density = DensityAt(settings_, Start(pipe), End(pipe)).value;
        return LawOf(i, pipe).value - density * kGravity * (pipe.Z2 - pipe.Z1);
    }

    /// Of the largest drop in the network.
    double Relative(double misfit) const {
        return result_.largestDrop == 0 ? 1 : std::abs(misfit) / result_.largestDrop;
    }

    void CheckPipe(int i, const PipeRec& pipe) {
        PipeResidual& residual = result_.pipes[i];
        const double misfit = Start(pipe) - End(pipe) - LawOf(i, pipe).value;
        residual.relative = misfit == 0 ? 0 : Relative(misfit);
        residual.belowVacuum = IsBelowVacuum(pipe);
        residual.settled = std::abs(misfit) <= tolerance_ && !residual.belowVacuum;
        result_.residual += residual.relative;
        result_.settled = result_.settled && residual.settled;
    }

    bool IsBelowVacuum(const PipeRec& pipe) const {
        if (settings_.EquationType != Equation::Compressible) return false;
        const double base = kAtmosphere + settings_.BasePressure;
        const double mean = base + (Start(pipe) + End(pipe)) / 2;
        return mean < MeanPressureAt(settings_, Start(pipe), End(pipe)).value ||
               base + std::min(Start(pipe), End(pipe)) < 0;
    }

    void CheckComponent(const Component& component) {
        if (component.high == 0) return;
        const PipeRec& pipe = work_.WorkPipes[component.pipeA];
        const double flow = result_.Flow(plan_, component.pipeA);
        const double law =
            ComponentLaw(settings_, component, pipe, flow, Start(pipe), End(pipe)).value;
        const double misfit =
            result_.Pressure(plan_, component.high) - result_.Pressure(plan_, component.low) - law;
        if (std::abs(misfit) <= tolerance_) return;
        result_.settled = false;
        result_.unsettledComponents.push_back({component.cell, Relative(misfit)});
    }

    void CheckBalance() {
        std::vector<double> gain(static_cast<std::size_t>(plan_.junctions) + 1);
        for (const JunctionTerm& term : plan_.junctionTerms) {
            gain[term.junction] += term.sign * result_.Flow(plan_, term.pipe);
        }
        const FlowScale scale = FlowScaleOf(settings_, plan_, work_, result_.solution);
        const double tolerance = kOfFlow * scale.largest + scale.rounding;
        for (const double sum : gain) Balance(sum, tolerance);
        for (const Component& component : plan_.components) {
            if (component.pipeB == 0) continue;
            Balance(component.signA * result_.Flow(plan_, component.pipeA) +
                        component.signB * result_.Flow(plan_, component.pipeB),
                    tolerance);
        }
        result_.settled = result_.settled && result_.balanced;
    }

    void Balance(double gain, double tolerance) {
        if (!(std::abs(gain) <= tolerance)) result_.balanced = false;
    }

    const Settings& settings_;
    const NetworkPlan& plan_;
    const WorkNetwork& work_;
    StageResult& result_;
    double tolerance_ = 0;  ///< Pa
};

}  // namespace

void CheckSolution(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                   StageResult& result) {
    Check(settings, plan, work, result).Run();
}

FlowScale FlowScaleOf(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                      const Solution& solution) {
    const double rounding =
        std::numeric_limits<double>::epsilon() * LargestHead(settings, plan, work, solution);
    FlowScale scale;
    for (const auto [i, pipe] : DrawnPipes(work)) {
        const SectionSize section = SectionOf(settings, pipe);
        const double resistance = FrictionLaw(settings, section, pipe.Length, 0).slope;
        const double moved = resistance > 0 ? rounding * settings.FluidDensity / resistance : 0;
        scale.largest = std::max(scale.largest, std::abs(solution.Flow(plan, i)));
        scale.rounding = std::max(scale.rounding, moved);
    }
    return scale;
}

}  // namespace idrova
