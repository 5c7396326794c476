// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include "hydraulics/compute_network.h"
#include "hydraulics/linear_solver.h"
#include "hydraulics/pipe_drop.h"
#include "support/assembled_network.h"
#include "support/plain_solver.h"

namespace idrova {
namespace {

class NoBoxes final : public MessageBoxes {
  public:
    Answer Show(const MessageBox& box) override {
        return box.buttons == BoxButtons::YesNo ? Answer::No : Answer::Ok;
    }
};

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
        double flow = flowAt;
        benchmark::DoNotOptimize(PipeDrop(network->settings, 0.1, 0, flow, 100, kAtmosphere));
    }
}
BENCHMARK(OnePipe)->ArgName("Re")->Arg(2000)->Arg(100000);

void Assembly(benchmark::State& run) {
    AssembledNetwork network(NetworkOf(static_cast<int>(run.range(0))));
    LinearSystem system(network.plan.Order());
    for (auto _ : run) {
        network.Assemble(system);
        benchmark::DoNotOptimize(system.matrix.data());
    }
    run.counters["N"] = network.plan.Order();
}
BENCHMARK(Assembly)->Arg(50)->Arg(100)->Arg(190);

template <typename SolveOnce>
void SolveBenchmark(benchmark::State& run, SolveOnce solve) {
    AssembledNetwork network(NetworkOf(static_cast<int>(run.range(0))));
    const LinearSystem assembled = network.Assemble();
    LinearSystem system = assembled;
    for (auto _ : run) {
        system.matrix = assembled.matrix;
        system.rightSide = assembled.rightSide;
        solve(system);
        benchmark::DoNotOptimize(system.rightSide.data());
    }
    run.counters["N"] = network.plan.Order();
}

void PlainTripleLoop(benchmark::State& run) {
    SolveBenchmark(run, [](LinearSystem& s) { PlainSolve(s.matrix, s.order, s.rightSide); });
}
BENCHMARK(PlainTripleLoop)->Arg(50)->Arg(100)->Arg(190);

void SolveWithInverse(benchmark::State& run) {
    SolveBenchmark(run, [](LinearSystem& s) {
        SolveLinearSystem(s.matrix, s.order, s.rightSide, Inverse::Wanted);
    });
}
BENCHMARK(SolveWithInverse)->Arg(50)->Arg(100)->Arg(190);

void SolveWithoutInverse(benchmark::State& run) {
    SolveBenchmark(run, [](LinearSystem& s) {
        SolveLinearSystem(s.matrix, s.order, s.rightSide, Inverse::NotWanted);
    });
}
BENCHMARK(SolveWithoutInverse)->Arg(50)->Arg(100)->Arg(190);

void WholeRun(benchmark::State& run) {
    NetworkBuilder network = NetworkOf(static_cast<int>(run.range(0)));
    auto work = std::make_unique<WorkNetwork>();
    NoBoxes boxes;
    Outcome outcome;
    for (auto _ : run) {
        CopyNetwork(*network, *work);
        outcome = ComputeNetwork(*network, *work, false, {.boxes = boxes, .seed = 1});
    }
    run.counters["passes"] = outcome.passes[0];
    run.counters["settled"] = outcome.end == RunEnd::Settled ? 1 : 0;
    run.counters["pipes"] = network->numtubo;
}
BENCHMARK(WholeRun)->Arg(161)->Arg(190)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace idrova
