// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/compute_network.h"

#include <algorithm>
#include <chrono>
#include <random>
#include <utility>

#include "hydraulics/first_stage.h"
#include "hydraulics/network_plan.h"
#include "hydraulics/run_checks.h"
#include "hydraulics/run_notes.h"
#include "hydraulics/run_results.h"
#include "hydraulics/solve_network.h"

namespace idrova {
namespace {

constexpr float kLargestGuess = 10;  ///< kg/s

std::uint32_t ClockSeed() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(now.count());
}

/// Uniform in [0, 10) with the 24 bits that a single holds, the same on every platform.
FlowGuesses StartGuesses(const WorkNetwork& work, std::uint32_t seed) {
    std::mt19937 random(seed);
    FlowGuesses guesses{};
    for (int i = 1; i <= work.WorkPipeCount; ++i) {
        const auto bits = static_cast<float>(random() >> 8U);
        guesses[i] = bits / 16777216.0F * kLargestGuess;
    }
    return guesses;
}

/// Turns passes into calls of the progress call, and its answers into going on.
PassReport ReportTo(const RunOptions& options) {
    return [&options, progress = RunProgress{}](int pass, double residual) mutable {
        if (residual != 0) {
            progress.closeness = std::min(100.0, 100 * double{kTotalTolerance} / residual);
        }
        progress.passes = std::min(100.0, 100.0 * pass / kPassLimit);
        return options.progress(progress);
    };
}

StageResult Solve(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                  const RunOptions& options) {
    const FlowGuesses start = StartGuesses(work, options.seed.value_or(ClockSeed()));
    return SolveNetwork(settings, plan, work, start, ReportTo(options));
}

RunEnd EndOf(const StageResult& result) {
    if (result.stopped) return RunEnd::Stopped;
    if (result.singular) return RunEnd::Singular;
    if (!result.finite) return RunEnd::NotFinite;
    return result.settled ? RunEnd::Settled : RunEnd::Unsettled;
}

void DescribeResiduals(const WorkNetwork& work, const StageResult& result, Outcome& outcome) {
    outcome.residual = result.residual;
    for (const auto [i, pipe] : DrawnPipes(work)) {
        const PipeResidual& residual = result.pipes[i];
        if (residual.settled || residual.belowVacuum) continue;
        if (outcome.worstPipe != 0 && residual.relative <= outcome.worstResidual) continue;
        outcome.worstResidual = residual.relative;
        outcome.worstPipe = i;
    }
}

std::optional<Refusal> CheckData(const Settings& settings, const WorkNetwork& work,
                                 const RunOptions& options) {
    std::optional<Refusal> refusal = CheckFluid(settings);
    if (!refusal && options.pipeDataChecked) refusal = CheckPipeData(settings, work);
    return refusal;
}

std::optional<Refusal> CheckSystem(const Settings& settings, const NetworkPlan& plan,
                                   const WorkNetwork& work) {
    std::optional<Refusal> refusal = CheckCounts(plan);
    return refusal ? refusal : CheckCoherence(settings, work);
}

Outcome Ended(RunEnd end, std::optional<Refusal> refusal = {}) {
    Outcome outcome;
    outcome.end = end;
    outcome.refusal = std::move(refusal);
    return outcome;
}

}  // namespace

Outcome ComputeNetwork(const Settings& settings, WorkNetwork& work, const RunOptions& options) {
    if (auto refusal = CheckData(settings, work, options)) return Ended(RunEnd::Refused, refusal);
    const NetworkPlan plan = PlanNetwork(work);
    if (plan.Order() == 0) return Ended(RunEnd::Empty);
    if (auto refusal = CheckSystem(settings, plan, work)) return Ended(RunEnd::Refused, refusal);

    const auto started = std::chrono::steady_clock::now();
    StageResult result = Solve(settings, plan, work, options);
    Outcome outcome;
    outcome.seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    outcome.passes = result.passes;
    outcome.end = EndOf(result);
    if (result.stopped) return outcome;
    outcome.stored = result.finite;
    if (outcome.stored) {
        DescribeResiduals(work, result, outcome);
        CleanUpZeroFlows(settings, plan, work, result);
    }
    outcome.notes = ResultNotes(settings, plan, work, result);
    if (outcome.stored) StoreResults(plan, work, result);
    return outcome;
}

}  // namespace idrova
