// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <vector>

#include "hydraulics/work_network.h"
#include "model/project.h"

namespace idrova {

/// A pump or loss of the drawing and how it hangs in the network.
struct Component {
    int cell = 0;
    CellRec record;
    int pipeA = 0, pipeB = 0;  ///< the pieces on either side; 0 when missing
    int high = 0, low = 0;     ///< the row states p(high) - p(low); 0 when there is no such point
    int signA = 1, signB = 1;  ///< of the two flows in the continuity row
    int throughSign = 1;  ///< times the flow of pipe A: the flow from suction to delivery (pump) or
                          ///< from upstream to downstream (loss)
};

/// The flow of a pipe in the balance of a junction: the sum of all such terms is 0.
struct JunctionTerm {
    int junction = 0;  ///< from 1
    int pipe = 0;
    int sign = 1;  ///< +1 when a positive flow reaches the junction
};

/// What stays the same through a run: the numbers of the unknowns, the counts, the components.
struct NetworkPlan {
    std::array<int, kMaxPipes + 1> flowUnknown{};       ///< of each drawn pipe, from 1; else 0
    std::array<int, kMaxPoints + 1> pressureUnknown{};  ///< of each drawn point, from 1; else 0
    std::array<int, kMaxPoints + 1> pipesAtPoint{};     ///< drawn pipes that end in each point
    int unknowns = 0;
    int equations = 0;
    int knownTerms = 0;
    int junctions = 0;                        ///< points in which several drawn pipes end
    std::vector<JunctionTerm> junctionTerms;  ///< by pipe
    std::vector<Component> components;        ///< one for each of the working network, in its order

    int Order() const { return equations + knownTerms; }
};

/// Numbers drawn pipes, then drawn points, and counts equations and known terms.
NetworkPlan PlanNetwork(const WorkNetwork& work);

/// One pipe ends there, and no component.
bool IsOpenEnd(const NetworkPlan& plan, int point);

}  // namespace idrova
