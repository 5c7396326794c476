// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <random>
#include <utility>

#include "hydraulics/network_system.h"
#include "hydraulics/pipe_drop.h"
#include "support/networks.h"

namespace idrova {

/// The equations of a drawn network at flows drawn at random, as they stand in some pass.
struct AssembledNetwork {
    explicit AssembledNetwork(NetworkBuilder drawn, std::uint32_t seed = 1)
        : network(std::move(drawn)) {
        std::mt19937 random(seed);
        CopyNetwork(*network, *work);
        plan = PlanNetwork(*work);
        for (int i = 1; i <= work->WorkPipeCount; ++i) {
            const PipeRec& pipe = work->WorkPipes[i];
            double flow = std::uniform_real_distribution<double>(0.1, 5)(random);
            state.guess[i] = random() % 2 == 0 ? flow : -flow;
            state.meanPressure[i] = kAtmosphere;
            const double drop = PipeDrop(network->settings, pipe.Diameter, pipe.OuterSize, flow,
                                         pipe.Length, state.meanPressure[i]);
            state.resistance[i] = static_cast<float>(drop / flow);
        }
    }

    LinearSystem Assemble(ComponentRows rows = ComponentRows::Lagged) {
        LinearSystem system(plan.Order());
        Assemble(system, rows);
        return system;
    }

    void Assemble(LinearSystem& system, ComponentRows rows = ComponentRows::Lagged) {
        AssembleNetworkSystem(network->settings, plan, *work, state, rows, system);
    }

    NetworkBuilder network;
    std::unique_ptr<WorkNetwork> work = std::make_unique<WorkNetwork>();
    NetworkPlan plan;
    PassState state;
};

}  // namespace idrova
