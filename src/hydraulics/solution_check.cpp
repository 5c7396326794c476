// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/solution_check.h"

#include <algorithm>
#include <cmath>

#include "hydraulics/component_law.h"
#include "hydraulics/pipe_drop.h"

namespace idrova {
namespace {

constexpr double kNegligibleShare = 1e-4;  ///< of the largest drop or flow in the network
constexpr double kIdleReynolds = 20;       ///< the explicit friction formula has a pole near 10
constexpr double kLevelHeads = 1e-6;       ///< relative
constexpr double kBalance = 1e-6;          ///< of the largest flow
constexpr double kRounding = 1e-8;         ///< of the largest head
/// A pipe's tolerance on its flow comes back doubled, and more, in a component's jump.
constexpr double kJumpTolerance = 1e-3;

class Check {
  public:
    Check(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
          const PassState& state, StageResult& result)
        : settings_(settings), plan_(plan), work_(work), state_(state), result_(result) {}

    void Run() {
        if (result_.singular) return;
        FindLargest();
        if (IsAtRest()) {
            ComeToRest();
            return;
        }
        result_.settled = std::isfinite(largestDrop_);
        ForDrawnPipes([this](int i) { CheckPipe(i); });
        for (const Component& component : plan_.components) CheckComponent(component);
        CheckBalance();
    }

  private:
    template <typename Visit>
    void ForDrawnPipes(Visit visit) const {
        for (int i = 1; i <= work_.WorkPipeCount; ++i) {
            if (work_.WorkPipes[i].IsDrawn()) visit(i);
        }
    }

    double Flow(int i) const { return result_.Flow(plan_, i); }

    /// Pa.
    double Head(int point, int height) const {
        return result_.Pressure(plan_, point) + settings_.FluidDensity * kGravity * height;
    }

    /// Frictional drop from start to end at the solution's flow, with the sign of that flow.
    double SignedDrop(int i) const {
        const PipeRec& pipe = work_.WorkPipes[i];
        double flow = Flow(i);
        const int sign = flow < 0 ? -pipe.DirectionSign() : pipe.DirectionSign();
        return sign * PipeDrop(settings_, pipe.Diameter, pipe.OuterSize, flow, pipe.Length,
                               state_.meanPressure[i]);
    }

    void FindLargest() {
        bool first = true;
        ForDrawnPipes([&](int i) {
            const PipeRec& pipe = work_.WorkPipes[i];
            largestFlow_ = std::max(largestFlow_, std::abs(Flow(i)));
            largestDrop_ = std::max(largestDrop_, std::abs(SignedDrop(i)));
            for (const double head :
                 {Head(pipe.StartPoint, pipe.Z1), Head(pipe.EndPoint, pipe.Z2)}) {
                lowestHead_ = first ? head : std::min(lowestHead_, head);
                highestHead_ = first ? head : std::max(highestHead_, head);
                first = false;
            }
        });
    }

    double LargestHead() const { return std::max(std::abs(lowestHead_), std::abs(highestHead_)); }

    /// No flow is given and all heads are level: nothing moves, however the passes wander about 0.
    bool IsAtRest() const {
        bool flowGiven = false;
        ForDrawnPipes([&](int i) { flowGiven = flowGiven || !work_.WorkFlowUnknown[i]; });
        return !flowGiven && highestHead_ - lowestHead_ <= kLevelHeads * LargestHead();
    }

    void ComeToRest() {
        ForDrawnPipes([this](int i) { result_.SetFlow(plan_, i, 0); });
        result_.pipes.fill({});
        result_.residual = 0;
        result_.settled = true;
    }

    /// What a pressure difference may be off by, Pa.
    double PressureTolerance() const {
        return kNegligibleShare * largestDrop_ + kRounding * LargestHead();
    }

    /// The heads, which is what the flow has to fit; a resistance times a flow would not show a
    /// solve that lost its digits.
    void CheckPipe(int i) {
        const PipeRec& pipe = work_.WorkPipes[i];
        PipeResidual& residual = result_.pipes[i];
        const double headLoss = Head(pipe.StartPoint, pipe.Z1) - Head(pipe.EndPoint, pipe.Z2);
        const double drop = SignedDrop(i);
        const double resistance = state_.resistance[i];
        const double linearised = pipe.DirectionSign() * resistance * Flow(i);
        const bool fits = std::abs(headLoss - drop) <= PressureTolerance();
        const bool idles = Idles(i) && std::abs(headLoss - linearised) <= PressureTolerance();
        const double missing = PressureBelowBound(i);
        residual.belowVacuum = missing > kMeanPressureTolerance;
        residual.settled = residual.meanPressureShift <= kMeanPressureTolerance &&
                           !residual.belowVacuum && (fits || idles);
        if (residual.settled) return;
        result_.settled = false;
        residual.relative = std::max({residual.relative, residual.meanPressureShift, missing});
        if (!fits && drop != 0) {
            residual.relative = std::max(residual.relative, std::abs(headLoss / drop - 1));
        }
    }

    /// How far the solution lies below the bound at which the mean pressure of the gas law was
    /// held, relative: there is no such flow.
    double PressureBelowBound(int i) const {
        if (settings_.EquationType != Equation::Compressible) return 0;
        const PipeRec& pipe = work_.WorkPipes[i];
        const double mean =
            kAtmosphere + settings_.BasePressure +
            (result_.Pressure(plan_, pipe.StartPoint) + result_.Pressure(plan_, pipe.EndPoint)) / 2;
        return 1 - mean / state_.meanPressure[i];
    }

    bool Idles(int i) const {
        const PipeRec& pipe = work_.WorkPipes[i];
        const double flow = std::abs(Flow(i));
        const SectionSize section = SectionGeometry(settings_, pipe.Diameter, pipe.OuterSize);
        return ReynoldsNumber(settings_, section, flow) < kIdleReynolds &&
               flow <= kNegligibleShare * largestFlow_;
    }

    void CheckComponent(const Component& component) {
        if (component.high == 0) return;
        const double flow = Flow(component.pipeA);
        const double jump = JumpOf(component, flow, result_.rows).value;
        const double slope = JumpOf(component, flow, ComponentRows::Sloped).slope;
        const double found =
            result_.Pressure(plan_, component.high) - result_.Pressure(plan_, component.low);
        const double tolerance = kJumpTolerance * (std::abs(jump) + std::abs(slope * flow));
        if (std::abs(found - jump) <= tolerance + PressureTolerance()) return;
        result_.settled = false;
        result_.unsettledCells.push_back(component.cell);
    }

    PressureJump JumpOf(const Component& component, double flow, ComponentRows rows) const {
        return JumpAt(settings_, component.record, component, work_.WorkPipes[component.pipeA],
                      flow, rows);
    }

    void CheckBalance() {
        std::array<double, kMaxPoints + 1> gain{};
        ForDrawnPipes([&](int i) {
            const PipeRec& pipe = work_.WorkPipes[i];
            gain[pipe.StartPoint] -= pipe.DirectionSign() * Flow(i);
            gain[pipe.EndPoint] += pipe.DirectionSign() * Flow(i);
        });
        for (const Component& component : plan_.components) {
            if (component.high == 0) continue;
            gain[component.high] += gain[component.low];
            if (!IsNone(gain[component.high])) result_.balanced = false;
        }
        for (int i = 1; i <= work_.WorkPointCount; ++i) {
            if (plan_.pipesAtPoint[i] > 1 && !IsNone(gain[i])) result_.balanced = false;
        }
        if (!result_.balanced) result_.settled = false;
    }

    bool IsNone(double flow) const { return std::abs(flow) <= kBalance * largestFlow_; }

    const Settings& settings_;
    const NetworkPlan& plan_;
    const WorkNetwork& work_;
    const PassState& state_;
    StageResult& result_;
    double largestFlow_ = 0;
    double largestDrop_ = 0;
    double lowestHead_ = 0;
    double highestHead_ = 0;
};

}  // namespace

void CheckSolution(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                   const PassState& state, StageResult& result) {
    Check(settings, plan, work, state, result).Run();
}

}  // namespace idrova
