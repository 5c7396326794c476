// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "hydraulics/network_plan.h"
#include "results/run_record.h"

namespace idrova {

/// A computed network as EPANET has it: what is no pump and no fixed drop parts no nodes, and a
/// loss coefficient belongs to a pipe.
struct EpanetNetwork {
    const Settings& settings;
    const WorkNetwork& work;
    NetworkPlan plan;
    std::array<int, kMaxPoints + 1> node{};         ///< the lowest point of each point's node
    std::array<double, kMaxPipes + 1> minorLoss{};  ///< of each pipe
};

/// The run must have results, and outlive what is returned.
EpanetNetwork EpanetNetworkOf(const RunRecord& run);

/// A pump, or a loss with a fixed drop, between two pipes: a link between two nodes.
bool IsLink(const Component& component);

/// Of the circle of equal friction, m.
double DiameterOf(const EpanetNetwork& network, int pipe);

/// The point of a node whose pressure is given; 0 when there is none.
int GivenPointOf(const EpanetNetwork& network, int node);

/// What leaves the network at a point, kg/s: 0 where it is no open end.
double DemandAt(const EpanetNetwork& network, int point);

}  // namespace idrova
