// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/unique_solution.h"

#include "hydraulics/fluid_density.h"
#include "hydraulics/network_system.h"
#include "hydraulics/sparse_solver.h"

namespace idrova {
namespace {

constexpr double kSmallestPivot = 1e-13;  ///< of the largest, rows and columns scaled to 1

}  // namespace

bool HasUniqueSolution(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work) {
    PassState state;
    state.resistance.fill(1);
    state.meanPressure.fill(MeanPressureAt(settings, 0, 0).value);
    LinearSystem system(plan.Order());
    AssembleNetworkSystem(settings, plan, work, state, system);
    SparseSolver solver;
    std::vector<double> ignored;
    return solver.Run(system, ignored) == Solve::Solved && solver.SmallestPivot() >= kSmallestPivot;
}

}  // namespace idrova
