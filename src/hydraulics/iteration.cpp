// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/iteration.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "hydraulics/fluid_density.h"
#include "hydraulics/linear_solver.h"
#include "hydraulics/network_system.h"
#include "hydraulics/pipe_drop.h"
#include "hydraulics/solution_check.h"

namespace idrova {
namespace {

constexpr double kResidualFloor = 1e-6;  ///< Pa; below it a drop counts as none
constexpr double kLargestStored = std::numeric_limits<float>::max();

constexpr double kRefinedTolerance = 1e-8;  ///< as `kPipeTolerance`
constexpr double kNegligibleShare = 1e-4;   ///< of the largest flow
constexpr int kRefiningPasses = 20;

class Stage {
  public:
    Stage(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
          const FlowGuesses& start, ComponentRows rows)
        : settings_(settings), plan_(plan), work_(work), system_(plan.Order()) {
        result_.rows = rows;
        moved_.fill(true);
        result_.solution.resize(plan.Order() + 1);
        state_.guess = start;
        StartMeanPressures();
    }

    StageResult Run(const PassReport& report) {
        bool ended = false;
        while (!ended) {
            ++result_.passes;
            SolvePass();
            if (!result_.finite) return std::move(result_);
            const bool guessesRest = Relax(kPipeTolerance, 0);
            const bool componentsRest = FindIdleComponents();
            const bool pressuresRest = RefreshMeanPressures();
            report(result_.passes, result_.residual);
            ended = result_.passes > kPassLimit ||
                    (pressuresRest && componentsRest &&
                     (result_.residual < kTotalTolerance || guessesRest));
        }
        Conclude();
        if (result_.settled) Refine();
        return std::move(result_);
    }

  private:
    template <typename Visit>
    void ForUnknownFlows(Visit visit) const {
        for (int i = 1; i <= work_.WorkPipeCount; ++i) {
            if (work_.WorkPipes[i].IsDrawn() && work_.WorkFlowUnknown[i]) visit(i);
        }
    }

    double Drop(int i, double flow) const {
        const PipeRec& pipe = work_.WorkPipes[i];
        return PipeDrop(settings_, pipe.Diameter, pipe.OuterSize, flow, pipe.Length,
                        state_.meanPressure[i]);
    }

    /// Rounded to a single until the result is refined.
    double ResistanceAt(int i, double guess) const {
        const double resistance = guess == 0 ? 0 : std::abs(Drop(i, guess) / guess);
        return refining_ ? resistance : static_cast<float>(resistance);
    }

    void StartMeanPressures() {
        double sum = 0;
        int given = 0;
        for (int i = 1; i <= work_.WorkPointCount; ++i) {
            if (!work_.WorkPoints[i].IsDrawn() || work_.WorkPressureUnknown[i]) continue;
            sum += work_.WorkPoints[i].Pressure;
            ++given;
        }
        const double mean = given == 0 ? 0 : sum / given;
        state_.meanPressure.fill(MeanAbsolutePressure(settings_, mean, mean));
    }

    void SolvePass() {
        ForUnknownFlows([this](int i) {
            if (moved_[i]) state_.resistance[i] = ResistanceAt(i, state_.guess[i]);
        });
        AssembleNetworkSystem(settings_, plan_, work_, state_, result_.rows, system_);
        result_.singular = SolveLinearSystem(system_.matrix, system_.order, system_.rightSide,
                                             Inverse::NotWanted) == Solve::Singular;
        std::copy(system_.rightSide.begin(), system_.rightSide.end(), result_.solution.begin() + 1);
        result_.finite = std::all_of(result_.solution.begin(), result_.solution.end(),
                                     [](double x) { return std::abs(x) <= kLargestStored; });
    }

    /// Measures every pipe and moves the guesses of those that are off by more than `tolerance`
    /// half way to the solution. Flows below `negligible` keep guess and residual: on them the
    /// guesses of the others leave nothing to measure. True when none had to move.
    bool Relax(double tolerance, double negligible) {
        bool atRest = true;
        result_.residual = 0;
        ForUnknownFlows([&](int i) {
            const double q = result_.Flow(plan_, i);
            PipeResidual& residual = result_.pipes[i];
            const bool measured = std::abs(q) >= negligible;
            if (measured) residual = Measure(i, q);
            result_.residual += residual.relative;
            moved_[i] = measured && residual.relative > tolerance;
            if (!moved_[i]) return;
            state_.guess[i] = (q + state_.guess[i]) / 2;
            atRest = false;
        });
        return atRest;
    }

    /// What has settled depends on the start values within the tolerance: two runs would differ in
    /// the fifth digit. A few passes more leave nothing of that; they count when they bring the
    /// result closer and it is settled still.
    void Refine() {
        StageResult settled = result_;
        refining_ = true;
        double largest = 0;
        ForUnknownFlows(
            [&](int i) { largest = std::max(largest, std::abs(result_.Flow(plan_, i))); });
        const double negligible = kNegligibleShare * largest;
        bool atRest = largest == 0 || Relax(kRefinedTolerance, negligible);
        for (int pass = 0; pass < kRefiningPasses && !atRest; ++pass) {
            SolvePass();
            if (!result_.finite) break;
            const bool guessesRest = Relax(kRefinedTolerance, negligible);
            const bool componentsRest = FindIdleComponents();
            atRest = RefreshMeanPressures() && guessesRest && componentsRest;
        }
        const bool solved = result_.finite && !result_.singular;
        if (solved) Conclude();
        const bool closer = solved && result_.settled && result_.residual <= settled.residual;
        if (!closer) result_ = std::move(settled);
    }

    void Conclude() {
        KeepGivenValues();
        CheckSolution(settings_, plan_, work_, state_, result_);
    }

    /// Without flow a pipe's law holds at any guess, which then never moves; the row of a component
    /// on it has to be taken at no flow. True when no row changed its place.
    bool FindIdleComponents() {
        if (result_.rows == ComponentRows::Lagged) return true;
        bool atRest = true;
        for (const Component& component : plan_.components) {
            const int i = component.pipeA;
            if (i == 0 || !work_.WorkFlowUnknown[i]) continue;
            const bool idles = result_.Flow(plan_, i) == 0 && state_.guess[i] != 0;
            if (idles != state_.componentIdles[i]) atRest = false;
            state_.componentIdles[i] = idles;
        }
        return atRest;
    }

    PipeResidual Measure(int i, double q) const {
        const double linearised = std::abs(state_.resistance[i] * q);
        const double drop = Drop(i, q);
        PipeResidual residual;
        if (drop != 0) residual.relative = std::abs(drop - linearised) / std::abs(drop);
        if ((linearised == 0 && drop < kResidualFloor) ||
            (drop == 0 && linearised < kResidualFloor)) {
            residual.relative = 0;
        }
        return residual;
    }

    /// True when no mean pressure moved.
    bool RefreshMeanPressures() {
        if (settings_.EquationType != Equation::Compressible) return true;
        bool atRest = true;
        for (int i = 1; i <= work_.WorkPipeCount; ++i) {
            const PipeRec& pipe = work_.WorkPipes[i];
            if (!pipe.IsDrawn()) continue;
            const double mean =
                MeanAbsolutePressure(settings_, result_.Pressure(plan_, pipe.StartPoint),
                                     result_.Pressure(plan_, pipe.EndPoint));
            double& kept = state_.meanPressure[i];
            moved_[i] = moved_[i] || mean != kept;
            const double shift = std::abs(mean - kept) / kept;
            result_.pipes[i].meanPressureShift = shift;
            if (shift > kMeanPressureTolerance) atRest = false;
            kept = mean;
        }
        return atRest;
    }

    /// The solve only reproduces what is given to its last digits.
    void KeepGivenValues() {
        for (int i = 1; i <= work_.WorkPipeCount; ++i) {
            const PipeRec& pipe = work_.WorkPipes[i];
            if (!pipe.IsDrawn() || work_.WorkFlowUnknown[i]) continue;
            result_.SetFlow(plan_, i, std::abs(pipe.FlowRate));
        }
        for (int i = 1; i <= work_.WorkPointCount; ++i) {
            const PointRec& point = work_.WorkPoints[i];
            if (!point.IsDrawn() || work_.WorkPressureUnknown[i]) continue;
            result_.SetPressure(plan_, i, point.Pressure);
        }
    }

    const Settings& settings_;
    const NetworkPlan& plan_;
    const WorkNetwork& work_;
    LinearSystem system_;
    PassState state_;
    StageResult result_;
    bool refining_ = false;
    std::array<bool, kMaxPipes + 1> moved_{};  ///< guess or mean pressure differs from last pass
};

}  // namespace

StageResult RunStage(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                     const FlowGuesses& start, ComponentRows rows, const PassReport& report) {
    return Stage(settings, plan, work, start, rows).Run(report);
}

}  // namespace idrova
