// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/pipe_panel.h"

#include <cmath>

#include "base/number_text.h"
#include "model/pipe_sizes.h"

namespace idrova {
namespace {

constexpr double kLargestPlainFlow = 1e6;  ///< kg/h; above, the exponent form

std::string ComputedFlowText(float kgPerSecond) {
    const auto kgPerHour = ToSingle(kgPerSecond * kSecondsPerHour);
    const bool plain = std::abs(kgPerHour) <= kLargestPlainFlow;
    return FormatNumber(kgPerHour, plain ? "###.##" : "0.00E+00");
}

void ShowSize(const PipeRec& pipe, PipePanel& panel) {
    panel.length = GeneralText(pipe.Length);
    panel.innerSize = ScaledText(pipe.Diameter, kMillimetresPerMetre);
    panel.lossSum = GeneralText(pipe.LossSum);
    panel.outerSize = ScaledText(pipe.OuterSize, kMillimetresPerMetre);
    if (panel.section.nominalSizes) panel.nominalSize = NominalSizeOf(pipe.Diameter);
}

PointPanel ShowEnd(const Project& project, const PipeRec& pipe, int point, int height) {
    PointPanel panel;
    panel.caption = "P" + GeneralText(point);
    panel.heightLabel = "Z" + GeneralText(point) + "[m]";
    panel.height = GeneralText(height);
    panel.reference = pipe.FlowFromPoint == point;
    ShowPressure(project, point, panel);
    return panel;
}

}  // namespace

std::string ScaledText(float value, double factor) {
    return GeneralText(ScaledSingle(value, factor));
}

std::string CubicMetresText(const Project& project, double kgPerHour) {
    if (project.settings.FluidDensity == 0) return {};
    return GeneralText(ToSingle(kgPerHour / project.settings.FluidDensity));
}

void ShowFlow(const Project& project, PipePanel& panel) {
    const float flow = project.Pipes[panel.pipe].FlowRate;
    panel.flowKnown = !project.FlowUnknown[panel.pipe];
    if (panel.flowKnown) {
        panel.kgPerHour = ScaledText(flow, kSecondsPerHour);
        panel.cubicMetresPerHour = CubicMetresText(project, ReadNumber(panel.kgPerHour));
        panel.computedKgPerHour.clear();
        panel.computedCubicMetresPerHour.clear();
    } else {
        panel.kgPerHour.clear();
        panel.cubicMetresPerHour.clear();
        panel.computedKgPerHour = ComputedFlowText(flow);
        panel.computedCubicMetresPerHour =
            CubicMetresText(project, ReadNumber(panel.computedKgPerHour));
    }
}

void ShowPressure(const Project& project, int point, PointPanel& panel) {
    const float shown = project.Points[point].Pressure / project.settings.PressureUnitFactor;
    panel.known = !project.PressureUnknown[point];
    panel.given.clear();
    panel.computed.clear();
    (panel.known ? panel.given : panel.computed) = FormatNumber(shown, "####.###");
}

PipePanel ShowPipeData(const Project& project) {
    PipePanel panel;
    panel.caption = "Pipe";
    panel.unitLabel = PressureUnitLabel(project.settings.PressureUnit);
    panel.section = DisplayOf(project.settings.SectionType);
    if (project.settings.Mode == WorkMode::Graphic) panel.pipe = project.CurrentPipe;
    if (panel.pipe == 0) return panel;
    const PipeRec& pipe = project.Pipes[panel.pipe];
    panel.caption = "Pipe " + GeneralText(panel.pipe);
    ShowFlow(project, panel);
    ShowSize(pipe, panel);
    panel.start = ShowEnd(project, pipe, pipe.StartPoint, pipe.Z1);
    panel.end = ShowEnd(project, pipe, pipe.EndPoint, pipe.Z2);
    return panel;
}

}  // namespace idrova
