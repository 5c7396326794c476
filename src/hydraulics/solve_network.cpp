// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/solve_network.h"

#include <array>
#include <cmath>
#include <utility>

#include "hydraulics/closing_stage.h"
#include "hydraulics/loose_part.h"
#include "hydraulics/solution_check.h"
#include "hydraulics/unique_solution.h"

namespace idrova {
namespace {

/// Solving only reproduces what is given to its last digits.
void KeepGivenValues(const NetworkPlan& plan, const WorkNetwork& work, Solution& solution) {
    for (const auto [i, pipe] : DrawnPipes(work)) {
        if (work.WorkFlowUnknown[i]) continue;
        solution.values[plan.flowUnknown[i]] = std::abs(pipe.FlowRate);
    }
    for (const auto [i, point] : DrawnPoints(work)) {
        if (work.WorkPressureUnknown[i]) continue;
        solution.values[plan.pressureUnknown[i]] = point.Pressure;
    }
}

StageResult Checked(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                    Solution solution) {
    StageResult result;
    result.solution = std::move(solution);
    result.finite = result.solution.IsFinite();
    if (!result.finite) return result;
    KeepGivenValues(plan, work, result.solution);
    CheckSolution(settings, plan, work, result);
    return result;
}

}  // namespace

StageResult SolveNetwork(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
                         const FlowGuesses& start, const PassReport& report) {
    FirstStage first = RunFirstStage(settings, plan, work, start, report);
    StageResult result;
    const bool unique =
        PipeWithoutGivenPressure(plan, work) == 0 && HasUniqueSolution(settings, plan, work);
    int passes = 0;
    bool stopped = first.stopped;
    bool closed = false;
    double misfit = 0;
    const auto close = [&](Solution from) {
        const KeepOn keepOn = [&](int pass) { return report(first.passes + passes + pass, 0); };
        ClosingStage closing = RunClosingStage(settings, plan, work, std::move(from), keepOn);
        passes += closing.passes;
        stopped = closing.stopped;
        if (!std::isfinite(closing.misfit) || (closed && !(closing.misfit < misfit))) return;
        closed = true;
        misfit = closing.misfit;
        result = Checked(settings, plan, work, std::move(closing.solution));
    };
    std::array starts = {first.solution, PlainStart(settings, plan, work)};
    if (!first.settled) std::swap(starts[0], starts[1]);
    for (const Solution& from : starts) {
        if (unique && !stopped && !result.settled) close(from);
    }
    if (!closed && !stopped) result = Checked(settings, plan, work, std::move(first.solution));
    result.stopped = stopped;
    result.singular = !unique;
    result.passes = {first.passes, passes};
    return result;
}

}  // namespace idrova
