// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/report_figures.h"

#include "hydraulics/pipe_drop.h"

namespace idrova {
namespace {

float PressureAt(const WorkNetwork& work, int point) {
    return work.WorkPoints[point].Pressure;
}

}  // namespace

PipeFigures FiguresOf(const PipeRec& pipe, const WorkNetwork& work, const Settings& settings) {
    const double diameter = pipe.Diameter;
    PipeFigures figures;
    figures.drop = PressureAt(work, pipe.StartPoint) - PressureAt(work, pipe.EndPoint);
    figures.dropPerMetre = figures.drop / pipe.Length;
    figures.speed = pipe.FlowRate / settings.FluidDensity / (diameter * diameter * kPi / 4);
    figures.reynolds = settings.FluidDensity * figures.speed * diameter / settings.FluidViscosity;
    return figures;
}

bool HoldsComponent(const CellRec& cell, CellKind kind) {
    return cell.Kind == kind && cell.Placed;
}

}  // namespace idrova
