// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/closing_stage.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "hydraulics/component_law.h"
#include "hydraulics/first_stage.h"
#include "hydraulics/pipe_drop.h"
#include "hydraulics/pipe_law.h"
#include "hydraulics/sparse_solver.h"

namespace idrova {
namespace {

constexpr int kClosingPasses = 50;
constexpr int kHalvings = 34;       ///< of a step: at a bend only the least share may improve
constexpr double kLastMove = 1e-8;  ///< of the largest flow, of the largest pressure

class Closing {
  public:
    Closing(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
            Solution start)
        : settings_(settings),
          plan_(plan),
          work_(work),
          system_(plan.Order()),
          held_(plan.components.size()) {
        result_.solution = std::move(start);
    }

    ClosingStage Run(const KeepOn& keepOn) {
        result_.misfit = Evaluate(result_.solution);
        while (result_.passes < kClosingPasses && std::isfinite(result_.misfit)) {
            ++result_.passes;
            if (!FindStep()) break;
            const bool last = IsSmall();
            if (!Move() || last) break;
            result_.stopped = !keepOn(result_.passes);
            if (result_.stopped) break;
        }
        if (!result_.solution.IsFinite()) {
            result_.misfit = std::numeric_limits<double>::infinity();
        }
        return std::move(result_);
    }

  private:
    PressureLaw LawOfPipe(const Solution& at, int i, const PipeRec& pipe) const {
        const double start = at.Pressure(plan_, pipe.StartPoint);
        const double end = at.Pressure(plan_, pipe.EndPoint);
        return work_.WorkFlowUnknown[i] ? PipeLaw(settings_, pipe, at.Flow(plan_, i), start, end)
                                        : GivenFlowLaw(settings_, pipe, start, end);
    }

    PressureLaw LawOfComponent(const Solution& at, const Component& component) const {
        const PipeRec& pipe = work_.WorkPipes[component.pipeA];
        return ComponentLaw(settings_, component, pipe, at.Flow(plan_, component.pipeA),
                            at.Pressure(plan_, pipe.StartPoint), at.Pressure(plan_, pipe.EndPoint));
    }

    /// A fixed drop on the line through no flow, where it holds the flow still.
    PressureLaw HeldLaw(const Solution& at, const Component& component) const {
        const PipeRec& pipe = work_.WorkPipes[component.pipeA];
        const double slope =
            double{component.record.Param2} * component.throughSign / FullDropFlow(settings_, pipe);
        return {slope * at.Flow(plan_, component.pipeA), slope};
    }

    /// Fills the equations for a step from `at`, and returns the misfit of the laws there.
    double Evaluate(const Solution& at) {
        system_.Clear();
        row_ = 0;
        double squares = 0;
        for (const auto [i, pipe] : DrawnPipes(work_)) {
            squares += Law(at, LawOfPipe(at, i, pipe), pipe.StartPoint, pipe.EndPoint, i);
        }
        for (std::size_t k = 0; k < plan_.components.size(); ++k) {
            const Component& component = plan_.components[k];
            if (component.high == 0) {
                ++row_;
                continue;
            }
            const PressureLaw law =
                held_[k] ? HeldLaw(at, component) : LawOfComponent(at, component);
            squares += Law(at, law, component.high, component.low, component.pipeA);
        }
        GivenValues(at);
        Balances(at);
        return std::sqrt(squares);
    }

    /// p(high) - p(low) = law. Returns the square of its misfit.
    double Law(const Solution& at, const PressureLaw& law, int high, int low, int pipe) {
        ++row_;
        const PipeRec& ends = work_.WorkPipes[pipe];
        Add(plan_.pressureUnknown[high], 1);
        Add(plan_.pressureUnknown[low], -1);
        Add(plan_.flowUnknown[pipe], -law.byFlow);
        if (settings_.EquationType == Equation::Compressible) {
            Add(plan_.pressureUnknown[ends.StartPoint], -law.byStart);
            Add(plan_.pressureUnknown[ends.EndPoint], -law.byEnd);
        }
        const double misfit = at.Pressure(plan_, high) - at.Pressure(plan_, low) - law.value;
        system_.AddRight(row_, -misfit);
        return misfit * misfit;
    }

    void Add(int unknown, double coefficient) { system_.Add(row_, unknown, coefficient); }

    /// A term of a linear equation, which a whole step satisfies.
    void AddTerm(const Solution& at, int row, int unknown, double coefficient) {
        system_.Add(row, unknown, coefficient);
        system_.AddRight(row, -coefficient * at.values[unknown]);
    }

    void Give(const Solution& at, int unknown, double value) {
        ++row_;
        AddTerm(at, row_, unknown, 1);
        system_.AddRight(row_, value);
    }

    void GivenValues(const Solution& at) {
        for (const auto [i, pipe] : DrawnPipes(work_)) {
            if (!work_.WorkFlowUnknown[i]) Give(at, plan_.flowUnknown[i], std::abs(pipe.FlowRate));
        }
        for (const auto [i, point] : DrawnPoints(work_)) {
            if (!work_.WorkPressureUnknown[i]) Give(at, plan_.pressureUnknown[i], point.Pressure);
        }
    }

    /// The sum of the flows that reach a junction, or a component, is 0.
    void Balances(const Solution& at) {
        for (const JunctionTerm& term : plan_.junctionTerms) {
            AddTerm(at, row_ + term.junction, plan_.flowUnknown[term.pipe], term.sign);
        }
        row_ += plan_.junctions;
        for (const Component& component : plan_.components) {
            ++row_;
            if (component.pipeB == 0) continue;
            AddTerm(at, row_, plan_.flowUnknown[component.pipeA], component.signA);
            AddTerm(at, row_, plan_.flowUnknown[component.pipeB], component.signB);
        }
    }

    /// A step that turns the flow through a fixed drop would overshoot the little flow at which it
    /// holds: such a drop is taken on its line through no flow instead.
    bool FindStep() {
        bool solved = solver_.Run(system_, step_) == Solve::Solved;
        if (solved && HoldTurnedDrops()) {
            Evaluate(result_.solution);
            solved = solver_.Run(system_, step_) == Solve::Solved;
            held_.assign(held_.size(), false);
        }
        return solved;
    }

    bool HoldTurnedDrops() {
        bool found = false;
        for (std::size_t k = 0; k < held_.size(); ++k) {
            const Component& component = plan_.components[k];
            const CellRec& cell = component.record;
            if (component.high == 0 || !cell.Placed || cell.Kind != CellKind::Loss) continue;
            if (cell.Param2 == 0) continue;
            const double flow = result_.solution.Flow(plan_, component.pipeA);
            const double next = flow + step_[plan_.flowUnknown[component.pipeA] - 1];
            const double full = FullDropFlow(settings_, work_.WorkPipes[component.pipeA]);
            held_[k] = std::abs(flow) > full && flow * next < 0;
            found = found || held_[k];
        }
        return found;
    }

    /// Whether a whole step would move nothing any more.
    bool IsSmall() const {
        const auto moves = [&](const auto& unknowns) {
            double move = 0;
            double largest = 0;
            for (const int unknown : unknowns) {
                if (unknown == 0) continue;
                move = std::max(move, std::abs(step_[unknown - 1]));
                largest = std::max(largest, std::abs(result_.solution.values[unknown]));
            }
            return move > kLastMove * largest;
        };
        return !moves(plan_.flowUnknown) && !moves(plan_.pressureUnknown);
    }

    /// False when no share of the step improves what is there. The first step is taken whole: only
    /// then do the linear equations hold.
    bool Move() {
        Solution trial;
        double share = 2;
        for (int halving = 0; halving < kHalvings; ++halving) {
            share /= 2;
            trial.values = result_.solution.values;
            for (std::size_t i = 0; i < step_.size(); ++i) trial.values[i + 1] += share * step_[i];
            const double misfit = Evaluate(trial);
            if (result_.passes > 1 && !(misfit < result_.misfit)) continue;
            result_.solution = std::move(trial);
            result_.misfit = misfit;
            return true;
        }
        return false;
    }

    const Settings& settings_;
    const NetworkPlan& plan_;
    const WorkNetwork& work_;
    LinearSystem system_;
    SparseSolver solver_;
    ClosingStage result_;
    std::vector<bool> held_;  ///< of the components, for the step that is being looked for
    std::vector<double> step_;
    int row_ = 0;
};

}  // namespace

ClosingStage RunClosingStage(const Settings& settings, const NetworkPlan& plan,
                             const WorkNetwork& work, Solution start, const KeepOn& keepOn) {
    return Closing(settings, plan, work, std::move(start)).Run(keepOn);
}

Solution PlainStart(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work) {
    Solution start;
    start.values.resize(static_cast<std::size_t>(plan.Order()) + 1);
    for (const auto [i, pipe] : DrawnPipes(work)) {
        const double area = SectionOf(settings, pipe).area;
        start.values[plan.flowUnknown[i]] = area * settings.FluidDensity;
    }
    const double mean = MeanGivenPressure(work);
    for (const auto [i, point] : DrawnPoints(work)) start.values[plan.pressureUnknown[i]] = mean;
    return start;
}

}  // namespace idrova
