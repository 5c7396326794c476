// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/network_results.h"

#include <cmath>
#include <map>

#include "base/number_text.h"
#include "hydraulics/fluid_density.h"
#include "hydraulics/network_plan.h"
#include "hydraulics/pipe_drop.h"
#include "hydraulics/run_results.h"

namespace idrova {
namespace {

double PressureAt(const WorkNetwork& results, int point) {
    return results.WorkPoints[point].Pressure;
}

/// The section that a flow really has, m2.
double FlowArea(const Settings& settings, const PipeRec& pipe) {
    if (settings.SectionType == Section::Rectangular) {
        return double{pipe.Diameter} * pipe.OuterSize;
    }
    return SectionGeometry(settings, pipe.Diameter, pipe.OuterSize).area;
}

/// By point: the first pipe of each tells.
std::map<int, double> HeightsOf(const WorkNetwork& results) {
    std::map<int, double> heights;
    for (const auto& [number, pipe] : DrawnPipes(results)) {
        heights.try_emplace(pipe.StartPoint, pipe.Z1);
        heights.try_emplace(pipe.EndPoint, pipe.Z2);
    }
    return heights;
}

ComponentResult ResultOf(const Component& component, const WorkNetwork& results) {
    const CellRec& record = component.record;
    ComponentResult result;
    result.cell = component.cell;
    result.name = record.Name;
    result.isPump = record.Kind == CellKind::Pump;
    result.minFlow = record.MinFlow;
    result.maxFlow = record.MaxFlow;
    result.flow = double(component.throughSign) * results.WorkPipes[component.pipeA].FlowRate;
    result.change = PressureAt(results, component.high) - PressureAt(results, component.low);
    if (result.isPump) {
        result.inRange = result.flow >= 0 && IsInRange(record);
    } else {
        result.flow = std::abs(result.flow);
        result.change = std::abs(result.change);
    }
    return result;
}

}  // namespace

PipeResult ResultOfPipe(const Settings& settings, const WorkNetwork& results, int number) {
    const PipeRec& pipe = results.WorkPipes[number];
    const bool forward = pipe.DirectionSign() > 0;
    const bool rectangular = settings.SectionType == Section::Rectangular;
    const SectionSize section = SectionGeometry(settings, pipe.Diameter, pipe.OuterSize);
    PipeResult result;
    result.number = number;
    result.from = forward ? pipe.StartPoint : pipe.EndPoint;
    result.to = forward ? pipe.EndPoint : pipe.StartPoint;
    result.flowGiven = !results.WorkFlowUnknown[number];
    result.flow = pipe.FlowRate;
    result.diameter = DecimalDouble(pipe.Diameter);
    result.sideB = rectangular ? DecimalDouble(pipe.OuterSize) : 0;
    result.length = DecimalDouble(pipe.Length);
    result.lossSum = DecimalDouble(pipe.LossSum);

    const double from = PressureAt(results, result.from);
    const double to = PressureAt(results, result.to);
    const double density = DensityAt(settings, from, to).value;
    const double rise = forward ? pipe.Z2 - pipe.Z1 : pipe.Z1 - pipe.Z2;
    result.drop = from - to;
    result.dropPerMetre = (result.drop - density * kGravity * rise) / pipe.Length;
    result.volumeFlow = result.flow / settings.FluidDensity;
    result.velocity = result.flow / density / FlowArea(settings, pipe);
    result.reynolds = ReynoldsNumber(settings, section, result.flow);
    return result;
}

std::vector<PipeResult> PipeResults(const Settings& settings, const WorkNetwork& results) {
    std::vector<PipeResult> list;
    for (const auto& [number, pipe] : DrawnPipes(results)) {
        list.push_back(ResultOfPipe(settings, results, number));
    }
    return list;
}

std::vector<PointResult> PointResults(const Settings& settings, const WorkNetwork& results) {
    auto heights = HeightsOf(results);
    const bool liquid = settings.EquationType == Equation::Incompressible;
    std::vector<PointResult> list;
    for (const auto& [number, point] : DrawnPoints(results)) {
        PointResult result{number, !results.WorkPressureUnknown[number], point.Pressure,
                           heights[number]};
        if (liquid) {
            result.head = result.height + result.pressure / (settings.FluidDensity * kGravity);
        }
        list.push_back(result);
    }
    return list;
}

std::vector<ComponentResult> ComponentResults(const WorkNetwork& results) {
    std::vector<ComponentResult> list;
    for (const Component& component : PlanNetwork(results).components) {
        if (component.record.Placed) list.push_back(ResultOf(component, results));
    }
    return list;
}

}  // namespace idrova
