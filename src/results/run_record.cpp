// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/run_record.h"

#include <cmath>

#include "model/drawn_records.h"

namespace idrova {
namespace {

Settings InputsOf(const Settings& settings) {
    Settings inputs;
    inputs.Mode = settings.Mode;
    if (settings.Mode != WorkMode::SinglePipe) inputs.SectionType = settings.SectionType;
    inputs.Roughness = settings.Roughness;
    inputs.EquationType = settings.EquationType;
    inputs.FluidDensity = settings.FluidDensity;
    inputs.FluidViscosity = settings.FluidViscosity;
    if (settings.EquationType == Equation::Incompressible) return inputs;
    inputs.FluidCompressibility = settings.FluidCompressibility;
    inputs.FluidTemperature = settings.FluidTemperature;
    inputs.BasePressure = settings.BasePressure;
    return inputs;
}

RunInputs::Pipe InputsOf(const Project& project, int number) {
    PipeRec pipe = project.Pipes[number];
    const bool unknown = project.FlowUnknown[number];
    if (project.settings.SectionType == Section::Circular) pipe.OuterSize = 0;
    // The reference end tells the direction of a given flow; of others the sign of the result.
    if (unknown) pipe.FlowFromPoint = 0;
    pipe.FlowRate = unknown ? 0 : std::abs(pipe.FlowRate);
    return {number, pipe, unknown};
}

void AddDrawing(const Project& project, RunInputs& inputs) {
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        inputs.pipes.push_back(InputsOf(project, number));
    }
    for (const auto& [number, point] : DrawnPoints(project)) {
        const bool unknown = project.PressureUnknown[number];
        inputs.points.push_back({number, point.Cell, unknown ? 0 : point.Pressure, unknown});
    }
    for (int cell = 1; cell <= project.CellCount(); ++cell) {
        if (!project.Cells[cell].IsComponent()) continue;
        CellRec record = project.Cells[cell];
        record.Result = 0;
        record.Name.clear();
        inputs.components.push_back({cell, record});
    }
}

}  // namespace

RunInputs InputsOf(const Project& project) {
    RunInputs inputs;
    inputs.settings = InputsOf(project.settings);
    if (project.settings.Mode == WorkMode::Graphic) AddDrawing(project, inputs);
    if (project.settings.Mode == WorkMode::Table) {
        inputs.rows.assign(project.TableRows.begin(), project.TableRows.end());
    }
    return inputs;
}

void TurnFlowsWith(const Project& project, RunRecord& record) {
    if (!record.results || record.settings.Mode != WorkMode::Graphic) return;
    for (const auto& [number, pipe] : DrawnPipes(*record.results)) {
        const std::int16_t from = project.Pipes[number].FlowFromPoint;
        if (from == pipe.FlowFromPoint || !pipe.IsEnd(from)) continue;
        pipe.FlowFromPoint = from;
        pipe.FlowRate = -pipe.FlowRate;
    }
}

}  // namespace idrova
