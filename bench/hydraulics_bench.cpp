// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "hydraulics/compute_network.h"
#include "hydraulics/network_system.h"
#include "hydraulics/pipe_drop.h"
#include "hydraulics/plain_elimination.h"
#include "hydraulics/sparse_solver.h"
#include "support/networks.h"

namespace idrova {
namespace {

/// Looped networks with about `unknowns` unknowns.
NetworkBuilder NetworkOf(int unknowns) {
    if (unknowns <= 50) return LoopedNetwork(4, 4);
    if (unknowns <= 100) return LoopedNetwork(6, 1);
    if (unknowns <= 161) return LoopedNetwork(7, 13);
    return LoopedNetwork(8, 6);
}

void OnePipe(benchmark::State& run) {
    NetworkBuilder network;
    const auto reynolds = static_cast<double>(run.range(0));
    const double flowAt = reynolds * kPi * 0.1 * 1e-3 / 4;
    for (auto _ : run) {
        benchmark::DoNotOptimize(PipeDrop(network->settings, 0.1, 0, flowAt, 100, kAtmosphere));
    }
}
BENCHMARK(OnePipe)->ArgName("Re")->Arg(2000)->Arg(100000);

/// The equations of a first pass, at guesses of all sizes.
LinearSystem SystemOf(int unknowns) {
    NetworkBuilder network = NetworkOf(unknowns);
    const auto work = std::make_unique<WorkNetwork>();
    CopyNetwork(*network, *work);
    const NetworkPlan plan = PlanNetwork(*work);
    PassState state;
    for (int i = 1; i <= work->WorkPipeCount; ++i) state.resistance[i] = 1000.0 * i;
    LinearSystem system(plan.Order());
    AssembleNetworkSystem(network->settings, plan, *work, state, system);
    return system;
}

void PlainElimination(benchmark::State& run) {
    const LinearSystem system = SystemOf(static_cast<int>(run.range(0)));
    std::vector<double> x;
    for (auto _ : run) benchmark::DoNotOptimize(EliminatePlainly(system, x));
}
BENCHMARK(PlainElimination)->Arg(50)->Arg(100)->Arg(190);

void SparseFirst(benchmark::State& run) {
    const LinearSystem system = SystemOf(static_cast<int>(run.range(0)));
    std::vector<double> x;
    for (auto _ : run) benchmark::DoNotOptimize(SparseSolver().Run(system, x));
}
BENCHMARK(SparseFirst)->Arg(50)->Arg(100)->Arg(190);

void SparseAgain(benchmark::State& run) {
    const LinearSystem system = SystemOf(static_cast<int>(run.range(0)));
    SparseSolver solver;
    std::vector<double> x;
    for (auto _ : run) benchmark::DoNotOptimize(solver.Run(system, x));
}
BENCHMARK(SparseAgain)->Arg(50)->Arg(100)->Arg(190);

void WholeRun(benchmark::State& run) {
    NetworkBuilder network = NetworkOf(static_cast<int>(run.range(0)));
    auto work = std::make_unique<WorkNetwork>();
    Outcome outcome;
    for (auto _ : run) {
        CopyNetwork(*network, *work);
        outcome = ComputeNetwork(network->settings, *work, {.seed = 1});
    }
    run.counters["passes"] = outcome.passes[0];
    run.counters["settled"] = outcome.end == RunEnd::Settled ? 1 : 0;
    run.counters["pipes"] = network->numtubo;
}
BENCHMARK(WholeRun)->Arg(161)->Arg(190)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace idrova
