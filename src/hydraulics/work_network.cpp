// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/work_network.h"

#include <algorithm>

namespace idrova {

void CopyNetwork(const Project& project, WorkNetwork& work) {
    const auto pipes = project.numtubo + 1;
    const auto points = project.npres + 1;
    work.WorkPipeCount = project.numtubo;
    work.WorkPointCount = project.npres;
    std::copy_n(project.Pipes.begin(), pipes, work.WorkPipes.begin());
    std::copy_n(project.FlowUnknown.begin(), pipes, work.WorkFlowUnknown.begin());
    std::copy_n(project.Points.begin(), points, work.WorkPoints.begin());
    std::copy_n(project.PressureUnknown.begin(), points, work.WorkPressureUnknown.begin());
    work.GridSize = project.GridSize;
    work.WorkComponents.clear();
    for (int cell = 1; cell <= project.CellCount(); ++cell) {
        const CellRec& record = project.Cells[cell];
        if (record.IsComponent()) work.WorkComponents.push_back({cell, record});
    }
}

}  // namespace idrova
