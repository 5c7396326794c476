// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "model/pipe_sizes.h"
#include "model/project.h"

namespace idrova {

/// The records of a drawing that are in use, without what a run has found.
struct Given {
    std::vector<PipeRec> pipes;
    std::vector<PointRec> points;
    std::vector<CellRec> cells;
    std::vector<bool> unknown, nodes;
    bool operator==(const Given&) const = default;
};

inline Given GivenOf(const Project& project) {
    Given given;
    for (int i = 1; i <= project.numtubo; ++i) {
        given.unknown.push_back(project.FlowUnknown[i]);
        given.pipes.push_back(project.Pipes[i]);
        if (project.FlowUnknown[i]) given.pipes.back().FlowRate = 0;
        // A selection sets that of a nominal size.
        if (NominalSizeOf(project.Pipes[i].Diameter) != 0) given.pipes.back().OuterSize = 0;
    }
    for (int i = 1; i <= project.npres; ++i) {
        given.unknown.push_back(project.PressureUnknown[i]);
        given.points.push_back(project.Points[i]);
        if (project.PressureUnknown[i]) given.points.back().Pressure = 0;
    }
    for (int cell = 1; cell <= project.CellCount(); ++cell) {
        given.nodes.push_back(project.CellIsNode[cell]);
        if (project.Cells[cell].Kind == CellKind::Empty) continue;
        given.cells.push_back(project.Cells[cell]);
        given.cells.back().Result = 0;
    }
    return given;
}

}  // namespace idrova
