// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "hydraulics/compute_network.h"
#include "support/networks.h"

namespace idrova {

/// Pipe 1 from point 1 to a component between points 2 and 3 of a cell, and from there to point 4
/// pipe 2, which is shorter and thinner.
inline NetworkBuilder CutPipe(CellKind kind, float length = 100, float diameter = 0.1F) {
    NetworkBuilder network;
    for (const int column : {2, 5, 5, 8}) network.AddPoint(column, 5);
    network.AddPipe(1, 2, length, diameter);
    network.AddPipe(3, 4, length / 2, diameter * 0.8F);
    network.AddComponent(2, kind);
    return network;
}

struct PipeSize {
    float length = 0, diameter = 0, lossSum = 0;
};

/// Two pipes with a component of the two or three numbers between them, between two pressures.
inline NetworkBuilder CutPipe(PipeSize first, CellKind kind, std::array<float, 3> numbers,
                              PipeSize second, float from, float to = 0) {
    NetworkBuilder network = CutPipe(kind, first.length, first.diameter);
    network->Pipes[2].Length = second.length;
    network->Pipes[2].Diameter = second.diameter;
    CellRec& cell = network->Cells[network->Points[2].Cell];
    cell.Param1 = numbers[0];
    cell.Param2 = numbers[1];
    cell.PumpConstant = numbers[2];
    network.SetPressure(1, from);
    network.SetPressure(4, to);
    return network;
}

inline void MakeAir(Project& project) {
    project.settings.FluidDensity = 1.2929;  // at 0 degrees Celsius and one atmosphere
    project.settings.FluidViscosity = 1.8e-5;
    project.settings.FluidCompressibility = 0.98;
    project.settings.FluidTemperature = 20;
    project.settings.EquationType = Equation::Compressible;
}

/// One run of a drawn network, and what came of it.
struct NetworkRun {
    explicit NetworkRun(const NetworkBuilder& network, std::uint32_t seed = 1) {
        CopyNetwork(*network, *work);
        outcome = ComputeNetwork(network->settings, *work, {.seed = seed});
    }

    std::vector<std::string> Notes() const {
        std::vector<std::string> texts;
        for (const Note& note : outcome.notes) texts.push_back(note.text);
        return texts;
    }
    double Flow(int pipe) const { return work->WorkPipes[pipe].FlowRate; }
    double Pressure(int point) const { return work->WorkPoints[point].Pressure; }

    std::unique_ptr<WorkNetwork> work = std::make_unique<WorkNetwork>();
    Outcome outcome;
};

}  // namespace idrova
