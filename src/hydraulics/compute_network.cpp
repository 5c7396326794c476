// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/compute_network.h"

#include <algorithm>
#include <chrono>
#include <random>
#include <utility>

#include "base/number_text.h"
#include "hydraulics/first_stage.h"
#include "hydraulics/messages.h"
#include "hydraulics/network_plan.h"
#include "hydraulics/run_checks.h"
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

RunProgress ProgressOf(int pass, double residual, double closenessSoFar) {
    RunProgress progress;
    progress.closeness =
        residual == 0 ? closenessSoFar : std::min(100.0, 100 * double{kTotalTolerance} / residual);
    progress.passes = std::min(100.0, 100.0 * pass / kPassLimit);
    return progress;
}

PassReport ProgressReport(const RunServices& services) {
    return [&services, closeness = 0.0](int pass, double residual) mutable {
        const RunProgress progress = ProgressOf(pass, residual, closeness);
        closeness = progress.closeness;
        services.showProgress(progress);
    };
}

bool MayRun(const Project& project, const WorkNetwork& work, bool singlePipe, MessageBoxes& boxes) {
    return FluidIsChosen(project.settings, boxes) && GasLawApplies(project.settings, boxes) &&
           (singlePipe || PipeDataAreComplete(project, work, boxes));
}

StageResult Solve(const Project& project, const NetworkPlan& plan, const WorkNetwork& work,
                  const RunServices& services) {
    return SolveNetwork(project.settings, plan, work,
                        StartGuesses(work, services.seed.value_or(ClockSeed())),
                        ProgressReport(services));
}

RunEnd EndOf(const StageResult& result) {
    if (!result.finite) return RunEnd::NotFinite;
    if (result.singular) return RunEnd::Singular;
    return result.settled ? RunEnd::Settled : RunEnd::Unsettled;
}

void DescribeResiduals(const WorkNetwork& work, const StageResult& result, Outcome& outcome) {
    outcome.residual = result.residual;
    for (int i = 1; i <= work.WorkPipeCount; ++i) {
        const PipeResidual& pipe = result.pipes[i];
        if (pipe.settled) continue;
        if (outcome.worstPipe != 0 && pipe.relative <= outcome.worstResidual) continue;
        outcome.worstResidual = pipe.relative;
        outcome.worstPipe = i;
    }
}

}  // namespace

Outcome ComputeNetwork(Project& project, WorkNetwork& work, bool singlePipe,
                       const RunServices& services) {
    Outcome outcome;
    MessageBoxes& boxes = services.boxes;
    if (!MayRun(project, work, singlePipe, boxes)) return outcome;

    const bool ofDrawing = project.settings.Mode == WorkMode::Graphic && !singlePipe;
    const NetworkPlan plan = PlanNetwork(work);
    work.EquationCount = plan.equations;
    if (plan.Order() == 0) {
        outcome.end = RunEnd::Empty;
        return outcome;
    }
    if (!CountsAreBalanced(plan, boxes)) return outcome;
    if (!GivenDataAreCoherent(project, work, boxes)) return outcome;

    StageResult result = Solve(project, plan, work, services);
    outcome.passes = result.passes;
    outcome.end = EndOf(result);
    if (outcome.end == RunEnd::NotFinite) {
        boxes.Show(kDoesNotSettle);
        return outcome;
    }
    DescribeResiduals(work, result, outcome);
    CleanUpZeroFlows(project, plan, work, result);
    outcome.notes = ResultNotes(project, plan, work, result);
    StoreResults(project, plan, work, result, ofDrawing);
    services.writeReport();

    CheckWorkingPoints(project, plan, boxes);
    if (!singlePipe) AddBasePressure(project, work, boxes);
    return outcome;
}

}  // namespace idrova
