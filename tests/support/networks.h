// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <random>

#include "model/grid.h"
#include "model/project.h"

namespace idrova {

/// Builds drawn networks for tests and benchmarks, in the numbering that drawing them would give.
class NetworkBuilder {
  public:
    /// With `points` points in a row.
    explicit NetworkBuilder(int points = 0) : project_(std::make_unique<Project>()) {
        InitialiseProject(*project_);
        project_->settings.FluidDensity = 1000;
        project_->settings.FluidViscosity = 1e-3;
        project_->settings.FluidName = "Water";
        for (int i = 1; i <= points; ++i) AddPoint(2 * i, 2);
    }

    /// A new point in a cell of the grid (column and row from 1).
    int AddPoint(int column, int row) {
        const int number = ++project_->npres;
        PointRec& point = project_->Points[number];
        const int cell = CellAt(column, row, project_->GridSize);
        const ScreenPoint centre = CellCentre(*project_, cell);
        point.X = static_cast<std::int16_t>(centre.x);
        point.Y = static_cast<std::int16_t>(centre.y);
        point.Cell = static_cast<std::int16_t>(cell);
        project_->CellIsNode[cell] = true;
        return number;
    }

    int AddPipe(int start, int end, float length = 100, float diameter = 0.1F) {
        const int number = ++project_->numtubo;
        PipeRec& pipe = project_->Pipes[number];
        pipe = {};
        pipe.StartPoint = pipe.FlowFromPoint = static_cast<std::int16_t>(start);
        pipe.EndPoint = static_cast<std::int16_t>(end);
        pipe.X1 = project_->Points[start].X;
        pipe.Y1 = project_->Points[start].Y;
        pipe.X2 = project_->Points[end].X;
        pipe.Y2 = project_->Points[end].Y;
        pipe.Length = length;
        pipe.Diameter = diameter;
        return number;
    }

    void SetPressure(int point, float pascal) {
        project_->Points[point].Pressure = pascal;
        project_->PressureUnknown[point] = false;
    }

    void SetFlow(int pipe, float kgPerSecond) {
        project_->Pipes[pipe].FlowRate = kgPerSecond;
        project_->FlowUnknown[pipe] = false;
    }

    /// The component between two points of the same cell.
    CellRec& AddComponent(int point, CellKind kind) {
        CellRec& cell = project_->Cells[project_->Points[point].Cell];
        cell.Kind = kind;
        cell.Placed = true;
        cell.Direction = Delivery::Right;
        cell.PipeAxis = Axis::Horizontal;
        cell.MaxFlow = 1e6F;
        return cell;
    }

    Project& operator*() { return *project_; }
    const Project& operator*() const { return *project_; }
    Project* operator->() { return project_.get(); }
    const Project* operator->() const { return project_.get(); }

  private:
    std::unique_ptr<Project> project_;
};

/// A looped network of `side` x `side` junctions: fed at 5 bar through a branch at the first one,
/// with `consumers` of 0.5 kg/s, each on a branch of its own, at the last ones. Side 7 with 13
/// consumers has 98 pipes and 161 unknowns. Lengths and diameters vary by the seed.
inline NetworkBuilder LoopedNetwork(int side, int consumers, std::uint32_t seed = 1) {
    NetworkBuilder network;
    std::mt19937 random(seed);
    const auto length = [&] { return 50.0F + static_cast<float>(random() % 100); };
    const auto diameter = [&] { return 0.05F + static_cast<float>(random() % 6) * 0.01F; };
    const auto column = [&](int junction) { return 3 + 3 * ((junction - 1) % side); };
    const auto row = [&](int junction) { return 3 + 3 * ((junction - 1) / side); };
    const int junctions = side * side;
    for (int i = 1; i <= junctions; ++i) network.AddPoint(column(i), row(i));
    for (int i = 1; i <= junctions; ++i) {
        if (i % side != 0) network.AddPipe(i, i + 1, length(), diameter());
        if (i + side <= junctions) network.AddPipe(i, i + side, length(), diameter());
    }
    const int source = network.AddPoint(column(1) - 1, row(1));
    network.AddPipe(source, 1, length(), 0.15F);
    network.SetPressure(source, 5 * kPascalPerBar);
    for (int i = 0; i < consumers; ++i) {
        const int junction = junctions - i;
        const int consumer = network.AddPoint(column(junction), row(junction) + 1);
        network.SetFlow(network.AddPipe(junction, consumer, length(), diameter()), 0.5F);
    }
    return network;
}

}  // namespace idrova
