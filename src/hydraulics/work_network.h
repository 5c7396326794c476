// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "model/drawn_records.h"
#include "model/project.h"

namespace idrova {

/// A component cell of the drawing. One whose component was deleted is there too: it joins the two
/// pieces of its pipe.
struct WorkComponent {
    int cell = 0;
    CellRec record;
};

/// The working copy that a computation runs on: filled from the drawing, from the table or from
/// the single-pipe window. Same records and capacities as the project; slot 0 unused. Entries
/// above the counts keep what they held.
struct WorkNetwork {
    std::array<PipeRec, kMaxPipes + 1> WorkPipes;
    std::array<PointRec, kMaxPoints + 1> WorkPoints;
    std::array<bool, kMaxPipes + 1> WorkFlowUnknown{};
    std::array<bool, kMaxPoints + 1> WorkPressureUnknown{};
    std::vector<WorkComponent> WorkComponents;  ///< of a drawing, in cell order
    int WorkPipeCount = 0;
    int WorkPointCount = 0;
    int GridSize = 0;  ///< of a drawing: cells in a row, for the places of components
};

inline DrawnRecords<PipeRec> DrawnPipes(WorkNetwork& work) {
    return {work.WorkPipes.data(), work.WorkPipeCount};
}
inline DrawnRecords<const PipeRec> DrawnPipes(const WorkNetwork& work) {
    return {work.WorkPipes.data(), work.WorkPipeCount};
}
inline DrawnRecords<PointRec> DrawnPoints(WorkNetwork& work) {
    return {work.WorkPoints.data(), work.WorkPointCount};
}
inline DrawnRecords<const PointRec> DrawnPoints(const WorkNetwork& work) {
    return {work.WorkPoints.data(), work.WorkPointCount};
}

/// Where the records of pipes and points that are on no drawing stand, so that they take part.
constexpr std::int16_t kAnyPlace = 10;

/// Copies the drawn network, deleted slots and the cells of all components included.
void CopyNetwork(const Project& project, WorkNetwork& work);

}  // namespace idrova
