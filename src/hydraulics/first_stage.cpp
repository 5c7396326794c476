// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/first_stage.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "hydraulics/fluid_density.h"
#include "hydraulics/network_system.h"
#include "hydraulics/pipe_law.h"
#include "hydraulics/plain_elimination.h"
#include "hydraulics/sparse_solver.h"

namespace idrova {
namespace {

constexpr double kPipeTolerance = 1e-4;          ///< on a pipe's relative residual
constexpr double kMeanPressureTolerance = 1e-6;  ///< on the move of a mean pressure, relative
constexpr double kResidualFloor = 1e-6;          ///< Pa; below it a drop counts as none

class Stage {
  public:
    Stage(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
          const FlowGuesses& start)
        : settings_(settings), plan_(plan), work_(work), system_(plan.Order()) {
        moved_.fill(true);
        state_.guess = start;
        const double mean = MeanGivenPressure(work);
        state_.meanPressure.fill(MeanPressureAt(settings, mean, mean).value);
    }

    FirstStage Run(const PassReport& report) {
        bool ended = false;
        while (!ended) {
            ++result_.passes;
            SolvePass();
            result_.finite = result_.solution.IsFinite();
            if (!result_.finite) return std::move(result_);
            const bool guessesRest = Relax();
            const bool pressuresRest = RefreshMeanPressures();
            result_.stopped = !report(result_.passes, residual_);
            result_.settled = pressuresRest && (residual_ < kTotalTolerance || guessesRest);
            ended = result_.stopped || result_.settled || result_.passes > kPassLimit;
        }
        return std::move(result_);
    }

  private:
    double Drop(int i, double flow) const {
        return DropWithLosses(settings_, work_.WorkPipes[i], flow, state_.meanPressure[i]);
    }

    void SolvePass() {
        for (const auto [i, pipe] : DrawnPipes(work_)) {
            if (!work_.WorkFlowUnknown[i] || !moved_[i]) continue;
            const double guess = state_.guess[i];
            const double resistance = guess == 0 ? 0 : std::abs(Drop(i, guess) / guess);
            state_.resistance[i] = static_cast<float>(resistance);
        }
        AssembleNetworkSystem(settings_, plan_, work_, state_, system_);
        if (solver_.Run(system_, found_) == Solve::Singular) EliminatePlainly(system_, found_);
        result_.solution.values.assign(1, 0);
        result_.solution.values.insert(result_.solution.values.end(), found_.begin(), found_.end());
    }

    /// Measures every pipe and moves the guesses of those that are off half way to the solution.
    /// True when none had to move.
    bool Relax() {
        bool atRest = true;
        residual_ = 0;
        for (const auto [i, pipe] : DrawnPipes(work_)) {
            if (!work_.WorkFlowUnknown[i]) continue;
            const double q = result_.solution.Flow(plan_, i);
            const double relative = Residual(i, q);
            residual_ += relative;
            moved_[i] = relative > kPipeTolerance;
            if (!moved_[i]) continue;
            state_.guess[i] = (q + state_.guess[i]) / 2;
            atRest = false;
        }
        return atRest;
    }

    double Residual(int i, double q) const {
        const double linearised = std::abs(state_.resistance[i] * q);
        const double drop = Drop(i, q);
        if (linearised == 0 && drop < kResidualFloor) return 0;
        if (drop == 0) return 0;
        return std::abs(drop - linearised) / drop;
    }

    /// True when no mean pressure moved.
    bool RefreshMeanPressures() {
        if (settings_.EquationType != Equation::Compressible) return true;
        bool atRest = true;
        for (const auto [i, pipe] : DrawnPipes(work_)) {
            const double mean =
                MeanPressureAt(settings_, result_.solution.Pressure(plan_, pipe.StartPoint),
                               result_.solution.Pressure(plan_, pipe.EndPoint))
                    .value;
            double& kept = state_.meanPressure[i];
            moved_[i] = moved_[i] || mean != kept;
            if (std::abs(mean - kept) / kept > kMeanPressureTolerance) atRest = false;
            kept = mean;
        }
        return atRest;
    }

    const Settings& settings_;
    const NetworkPlan& plan_;
    const WorkNetwork& work_;
    LinearSystem system_;
    SparseSolver solver_;
    PassState state_;
    FirstStage result_;
    std::vector<double> found_;
    double residual_ = 0;
    std::array<bool, kMaxPipes + 1> moved_{};  ///< guess or mean pressure differs from last pass
};

}  // namespace

bool Solution::IsFinite() const {
    constexpr double largest = std::numeric_limits<float>::max();
    return std::ranges::all_of(values, [](double x) { return std::abs(x) <= largest; });
}

FirstStage RunFirstStage(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                         const FlowGuesses& start, const PassReport& report) {
    return Stage(settings, plan, work, start).Run(report);
}

double MeanGivenPressure(const WorkNetwork& work) {
    double sum = 0;
    int given = 0;
    for (const auto [i, point] : DrawnPoints(work)) {
        if (work.WorkPressureUnknown[i]) continue;
        sum += point.Pressure;
        ++given;
    }
    return given == 0 ? 0 : sum / given;
}

}  // namespace idrova
