// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/solution_check.h"

#include <gtest/gtest.h>

#include <tuple>

#include "hydraulics/run_notes.h"
#include "hydraulics/run_results.h"
#include "hydraulics/solve_network.h"
#include "hydraulics/unique_solution.h"
#include "support/network_run.h"

namespace idrova {
namespace {

/// A network with its solution, which a test then bends.
struct Solved {
    explicit Solved(const NetworkBuilder& network) : settings(network->settings) {
        CopyNetwork(*network, *work);
        plan = PlanNetwork(*work);
        FlowGuesses guesses{};
        guesses.fill(1);
        result = SolveNetwork(settings, plan, *work, guesses, [](int, double) { return true; });
    }

    double Pressure(int point) const { return result.Pressure(plan, point); }

    StageResult Check() const {
        StageResult checked;
        checked.solution = result.solution;
        CheckSolution(settings, plan, *work, checked);
        return checked;
    }

    /// That something has not settled, before all other notes.
    bool TellsFirst(const StageResult& checked, NoteOn on) const {
        const std::vector<Note> notes = ResultNotes(settings, plan, *work, checked);
        return !notes.empty() && notes[0].on == on &&
               notes[0].text.find("has not settled") != std::string::npos;
    }

    Settings settings;
    std::unique_ptr<WorkNetwork> work = std::make_unique<WorkNetwork>();
    NetworkPlan plan;
    StageResult result;
};

/// Of what flows, in a loop whose consumers take 1 kg/s together, and in the piece behind a valve.
TEST(SolutionCheck, FindsFlowsOutOfBalanceAtJunctionsAndComponents) {
    Solved loop(LoopedNetwork(3, 2));
    Solved valve(CutPipe({100, 0.1F}, CellKind::Loss, {3}, {50, 0.08F}, 3e5F, 2e5F));
    for (const auto& [solved, pipe, largest] :
         {std::tuple{&loop, 1, 1.0}, {&valve, 2, valve.result.Flow(valve.plan, 2)}}) {
        ASSERT_TRUE(solved->Check().settled);
        const double flow = solved->result.Flow(solved->plan, pipe);
        for (const double share : {-3e-9, -3e-10, 3e-10, 3e-9}) {
            solved->result.SetFlow(solved->plan, pipe, flow + share * largest);
            const bool holds = std::abs(share) < 1e-9;
            EXPECT_EQ(solved->Check().balanced, holds) << share;
            EXPECT_EQ(solved->Check().settled, holds) << share;
            EXPECT_TRUE(solved->Check().pipes[pipe].settled);
        }
    }
}

/// A valve between two pipes at 3 bar: what they may be off follows from the drop, or, where that
/// is little, from the head.
TEST(SolutionCheck, FindsAComponentAndAPipeThatAreOff) {
    for (const float to : {2e5F, 299999.F}) {
        Solved solved(CutPipe({100, 0.1F}, CellKind::Loss, {3}, {50, 0.08F}, 3e5F, to));
        ASSERT_TRUE(solved.Check().settled);
        const double drop = solved.Pressure(3) - solved.Pressure(4);
        const double tolerance = 1e-6 * drop + 1e-9 * 3e5;
        const Solution solution = solved.result.solution;
        for (const double share : {0.5, 5.0}) {
            const bool holds = share < 1;
            solved.result.solution = solution;
            for (const int point : {1, 2}) {  // pipe 1 goes along
                solved.result.solution.values[solved.plan.pressureUnknown[point]] +=
                    share * tolerance;
            }
            StageResult checked = solved.Check();
            EXPECT_EQ(checked.settled, holds);
            EXPECT_EQ(checked.unsettledComponents.empty(), holds);
            EXPECT_TRUE(checked.pipes[1].settled);
            EXPECT_EQ(solved.TellsFirst(checked, NoteOn::Cell), !holds);
            solved.result.solution.values[solved.plan.pressureUnknown[2]] -= share * tolerance;
            checked = solved.Check();
            EXPECT_EQ(checked.settled, holds);
            EXPECT_EQ(checked.pipes[1].settled, holds);
            EXPECT_EQ(solved.TellsFirst(checked, NoteOn::Pipe), !holds);
        }
    }
}

/// A pipe without flow, its ends level by their heads but 10 m apart in height, beside another one
/// from 3 to 2 bar.
TEST(ZeroFlows, AreCleanedUpByHeadAndFlow) {
    NetworkBuilder network(4);
    network->Pipes[network.AddPipe(1, 2)].Z1 = 10;
    network.AddPipe(3, 4);
    network.SetPressure(1, 2e5F);
    network.SetPressure(2, 2e5F + 98100);
    network.SetPressure(3, 3e5F);
    network.SetPressure(4, 2e5F);
    Solved solved(network);
    const double largest = solved.result.Flow(solved.plan, 2);
    const struct {
        double flowShare, startHead, endHead;
        bool known, cleanedUp;
    } cases[] = {{0.5e-8, 3e5, 3e5, false, true},     {-0.5e-8, 3e5, 300001.5, false, true},
                 {5e-8, 3e5, 3e5, false, false},      {-5e-8, 3e5, 3e5, false, false},
                 {0.5e-8, 3e5, 300009, false, false}, {0.5e-8, 3e5, 299991, false, false},
                 {0.5e-8, 3e5, 3e5, true, false},     {0.5e-8, 0, 0, false, true},
                 {0.5e-8, 0, 1e-9, false, false}};
    for (const auto& c : cases) {
        StageResult result = solved.result;
        result.SetFlow(solved.plan, 1, c.flowShare * largest);
        result.solution.values[solved.plan.pressureUnknown[1]] = c.startHead - 98100;
        result.solution.values[solved.plan.pressureUnknown[2]] = c.endHead;
        solved.work->WorkFlowUnknown[1] = !c.known;
        CleanUpZeroFlows(solved.settings, solved.plan, *solved.work, result);
        EXPECT_EQ(result.Flow(solved.plan, 2), largest);
        EXPECT_EQ(result.Flow(solved.plan, 1) == 0, c.cleanedUp);
    }
}

/// In the short wide pipe the rounding of the heads would move more than the thin ones take.
TEST(ZeroFlows, LeaveTheLittleThatIsGiven) {
    NetworkBuilder network(4);
    network.AddPipe(1, 2, 1, .1F);
    network.AddPipe(2, 3, 1, .05F);
    network.AddPipe(3, 4, 1, .05F);
    network.SetPressure(1, 1e6F);
    network.SetFlow(3, 1e-4F);
    const NetworkRun run(network);
    for (int i = 1; i <= 3; ++i) EXPECT_NEAR(run.Flow(i), 1e-4, 1e-9);
}

bool IsUnique(const NetworkBuilder& network) {
    const auto work = std::make_unique<WorkNetwork>();
    CopyNetwork(*network, *work);
    return HasUniqueSolution(network->settings, PlanNetwork(*work), *work);
}

/// Without a level for the pressures: the pivots leave rounding.
TEST(UniqueSolution, IsSeenFromWhatIsJoinedAndGiven) {
    for (int side = 3; side <= 7; ++side) {
        NetworkBuilder network = LoopedNetwork(side, 2);
        const int source = side * side + 1;
        EXPECT_TRUE(IsUnique(network));
        network->PressureUnknown[source] = true;
        network.SetFlow(2 * side * (side - 1) + 1, 1);
        EXPECT_FALSE(IsUnique(network));
    }
}

/// Air behind a fixed drop that holds it still: next to the pipes round, that drop resists 10^16
/// times as much, and the network has one solution all the same.
TEST(UniqueSolution, DoesNotDependOnHowUnlikeTheResistancesAre) {
    NetworkBuilder network = CutPipe(CellKind::Loss);
    network->Cells[network->Points[2].Cell].Param2 = 1e5F;
    MakeAir(*network);
    for (const int row : {3, 7}) network.AddPoint(8, row);
    network.AddPipe(4, 5, 0.1F, 0.5F);
    network.AddPipe(5, 6, 0.1F, 0.5F);
    network.AddPipe(6, 4, 0.1F, 0.5F);
    network.SetPressure(1, 2e5F);
    const NetworkRun run(network);
    EXPECT_EQ(run.outcome.end, RunEnd::Settled);
    for (int i = 1; i <= 5; ++i) EXPECT_EQ(run.Flow(i), 0);
}

}  // namespace
}  // namespace idrova
