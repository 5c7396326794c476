// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/pipe_panel.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "editor/selection.h"
#include "model/pipe_sizes.h"

namespace idrova {
namespace {

constexpr double kLargestPlainFlow = 1e6;  ///< kg/h; above, the exponent form

std::string ComputedFlowText(float kgPerSecond) {
    const auto kgPerHour = ToSingle(kgPerSecond * kSecondsPerHour);
    const bool plain = std::abs(kgPerHour) <= kLargestPlainFlow;
    return FormatNumber(kgPerHour, plain ? "###.##" : "0.00E+00");
}

/// What `valueOf` makes of the pipes of the panel where it is the same for all, else an empty
/// value.
template <typename ValueOf>
auto Common(const Project& project, const PipePanel& panel, const ValueOf& valueOf) {
    const auto first = valueOf(project.Pipes[panel.pipes.front()]);
    const bool same = std::ranges::all_of(
        panel.pipes, [&](int number) { return valueOf(project.Pipes[number]) == first; });
    return same ? first : decltype(valueOf(project.Pipes[0])){};
}

void ShowSizes(const Project& project, PipePanel& panel) {
    const auto common = [&](float PipeRec::*field, double factor) {
        return Common(project, panel,
                      [&](const PipeRec& pipe) { return ScaledText(pipe.*field, factor); });
    };
    panel.length = common(&PipeRec::Length, 1);
    panel.innerSize = common(&PipeRec::Diameter, kMillimetresPerMetre);
    panel.outerSize = common(&PipeRec::OuterSize, kMillimetresPerMetre);
    ShowLossSum(project, panel);
    if (!panel.section.nominalSizes) return;
    panel.nominalSize =
        Common(project, panel, [](const PipeRec& pipe) { return NominalSizeOf(pipe.Diameter); });
}

PointPanel ShowEnd(const Project& project, const PipeRec& pipe, int point) {
    PointPanel panel;
    panel.caption = "P" + GeneralText(point);
    panel.heightLabel = "Z" + GeneralText(point) + "[m]";
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

void ShowLossSum(const Project& project, PipePanel& panel) {
    if (panel.pipes.empty()) return;
    panel.lossSum =
        Common(project, panel, [](const PipeRec& pipe) { return ScaledText(pipe.LossSum, 1); });
}

void ShowFlow(const Project& project, PipePanel& panel) {
    const float flow = project.Pipes[panel.OnlyPipe()].FlowRate;
    panel.flowKnown = !project.FlowUnknown[panel.OnlyPipe()];
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

void TakeComputed(const PipePanel& now, PipePanel& panel) {
    panel.computedKgPerHour = now.computedKgPerHour;
    panel.computedCubicMetresPerHour = now.computedCubicMetresPerHour;
    panel.start.computed = now.start.computed;
    panel.end.computed = now.end.computed;
}

void ShowHeights(const Project& project, PipePanel& panel) {
    const auto common = [&](std::int16_t PipeRec::*height) {
        return Common(project, panel,
                      [&](const PipeRec& pipe) { return GeneralText(pipe.*height); });
    };
    panel.start.height = common(&PipeRec::Z1);
    panel.end.height = common(&PipeRec::Z2);
}

PipePanel ShowPipeData(const Project& project, const Editor& editor) {
    PipePanel panel;
    panel.caption = "Pipe";
    panel.start.heightLabel = "Z1 [m]";
    panel.end.heightLabel = "Z2 [m]";
    panel.unitLabel = PressureUnitLabel(project.settings.PressureUnit);
    panel.section = DisplayOf(project.settings.SectionType);
    if (project.settings.Mode == WorkMode::Graphic) panel.pipes = SelectedPipes(project, editor);
    if (panel.pipes.empty()) return panel;
    if (const int number = panel.OnlyPipe(); number != 0) {
        const PipeRec& pipe = project.Pipes[number];
        panel.caption = "Pipe " + GeneralText(number);
        ShowFlow(project, panel);
        panel.start = ShowEnd(project, pipe, pipe.StartPoint);
        panel.end = ShowEnd(project, pipe, pipe.EndPoint);
    } else {
        panel.caption = GeneralText(static_cast<int>(panel.pipes.size())) + " pipes";
        panel.start.heightLabel = "Z start [m]";
        panel.end.heightLabel = "Z end [m]";
    }
    ShowSizes(project, panel);
    ShowHeights(project, panel);
    return panel;
}

}  // namespace idrova
