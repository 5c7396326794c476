// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/panel_edits.h"

#include "base/number_text.h"
#include "base/typed_size.h"
#include "editor/messages.h"
#include "model/pipe_sizes.h"

namespace idrova {
namespace {

/// Null when there is none, and when there are several.
PipeRec* OnlyPipe(Project& project, const PipePanel& panel) {
    return panel.OnlyPipe() == 0 ? nullptr : &project.Pipes[panel.OnlyPipe()];
}

template <typename Value>
void StoreInAll(Project& project, const PipePanel& panel, Value PipeRec::*field, Value value) {
    for (const int number : panel.pipes) project.Pipes[number].*field = value;
}

PointPanel& PanelOf(PipePanel& panel, PipeEnd end) {
    return end == PipeEnd::Start ? panel.start : panel.end;
}

/// Takes `text` into a box that allows no negative number; returns the number.
double TakeSize(PipePanel& panel, std::string& box, std::string_view text) {
    box = TypedSize(text, panel.negative);
    return ReadNumber(box);
}

/// Nothing was typed yet where the record still holds 0.
void EmptyZero(std::string& box, float stored) {
    if (stored == 0) box.clear();
}

}  // namespace

void SetNominalSize(PipeRec& pipe, int size) {
    pipe.Diameter = static_cast<float>(InnerDiameters[size] / kMillimetresPerMetre);
    pipe.OuterSize = static_cast<float>(OuterDiameters[size] / kMillimetresPerMetre);
}

void ChooseFlow(Project& project, PipePanel& panel, bool known) {
    const PipeRec* pipe = OnlyPipe(project, panel);
    if (pipe == nullptr) return;
    project.FlowUnknown[panel.OnlyPipe()] = !known;
    ShowFlow(project, panel);
    EmptyZero(panel.kgPerHour, pipe->FlowRate);
    EmptyZero(panel.cubicMetresPerHour, pipe->FlowRate);
}

void TypeKgPerHour(Project& project, PipePanel& panel, std::string_view text) {
    PipeRec* pipe = OnlyPipe(project, panel);
    if (pipe == nullptr || !panel.flowKnown) return;
    const double kgPerHour = ReadNumber(text);
    panel.kgPerHour = text;
    panel.cubicMetresPerHour = CubicMetresText(project, kgPerHour);
    pipe->FlowRate = ToSingle(kgPerHour / kSecondsPerHour);
}

bool TypeCubicMetresPerHour(Project& project, PipePanel& panel, std::string_view text,
                            MessageBoxes& boxes) {
    PipeRec* pipe = OnlyPipe(project, panel);
    if (pipe == nullptr || !panel.flowKnown) return true;
    if (project.settings.FluidDensity == 0) {
        panel.cubicMetresPerHour.clear();
        boxes.Show(kFluidForVolumeFlow);
        return false;
    }
    panel.cubicMetresPerHour = text;
    pipe->FlowRate = ToSingle(ReadNumber(text) * project.settings.FluidDensity / kSecondsPerHour);
    panel.kgPerHour = ScaledText(pipe->FlowRate, kSecondsPerHour);
    return true;
}

void TypeLength(Project& project, PipePanel& panel, std::string_view text) {
    if (panel.pipes.empty()) return;
    StoreInAll(project, panel, &PipeRec::Length, ToSingle(TakeSize(panel, panel.length, text)));
}

void TypeInnerSize(Project& project, PipePanel& panel, std::string_view text) {
    if (panel.pipes.empty()) return;
    const float size = ToSingle(TakeSize(panel, panel.innerSize, text) / kMillimetresPerMetre);
    StoreInAll(project, panel, &PipeRec::Diameter, size);
    panel.nominalSize = panel.section.nominalSizes ? NominalSizeOf(size) : 0;
}

void TypeOuterSize(Project& project, PipePanel& panel, std::string_view text) {
    if (panel.pipes.empty()) return;
    const float size = ToSingle(TakeSize(panel, panel.outerSize, text) / kMillimetresPerMetre);
    StoreInAll(project, panel, &PipeRec::OuterSize, size);
}

void TypeLossSum(Project& project, PipePanel& panel, std::string_view text) {
    if (panel.pipes.empty()) return;
    StoreInAll(project, panel, &PipeRec::LossSum, ToSingle(TakeSize(panel, panel.lossSum, text)));
}

void AddLosses(Project& project, PipePanel& panel, double sum) {
    for (const int number : panel.pipes) {
        float& lossSum = project.Pipes[number].LossSum;
        lossSum = ToSingle(DecimalDouble(lossSum) + sum);
    }
    ShowLossSum(project, panel);
}

void ChoosePipeSize(Project& project, PipePanel& panel, int size) {
    if (panel.pipes.empty() || size < 1 || size > kNominalSizes) return;
    for (const int number : panel.pipes) SetNominalSize(project.Pipes[number], size);
    panel.nominalSize = size;
    panel.innerSize = InnerDiameterText(size);
    panel.outerSize = GeneralText(OuterDiameters[size]);
}

void TypeHeight(Project& project, PipePanel& panel, PipeEnd end, std::string_view text) {
    if (panel.pipes.empty()) return;
    const double height = TakeSize(panel, PanelOf(panel, end).height, text);
    StoreInAll(project, panel, end == PipeEnd::Start ? &PipeRec::Z1 : &PipeRec::Z2,
               ToInt16(height));
}

void LeaveBox(const Project& project, PipePanel& panel) {
    panel.negative = false;
    if (!panel.pipes.empty()) ShowHeights(project, panel);
}

void ChoosePressure(Project& project, PipePanel& panel, PipeEnd end, bool known) {
    const PipeRec* pipe = OnlyPipe(project, panel);
    if (pipe == nullptr) return;
    const int point = PointAt(*pipe, end);
    project.PressureUnknown[point] = !known;
    ShowPressure(project, point, PanelOf(panel, end));
    EmptyZero(PanelOf(panel, end).given, project.Points[point].Pressure);
}

void TypePressure(Project& project, PipePanel& panel, PipeEnd end, std::string_view text) {
    const PipeRec* pipe = OnlyPipe(project, panel);
    PointPanel& box = PanelOf(panel, end);
    if (pipe == nullptr || !box.known) return;
    box.given = text;
    project.Points[PointAt(*pipe, end)].Pressure =
        ToSingle(ReadNumber(text) * project.settings.PressureUnitFactor);
}

void ChooseDirection(Project& project, PipePanel& panel, PipeEnd end) {
    PipeRec* pipe = OnlyPipe(project, panel);
    if (pipe == nullptr) return;
    const int point = PointAt(*pipe, end);
    if (pipe->FlowFromPoint == point) return;
    pipe->FlowFromPoint = static_cast<std::int16_t>(point);
    if (project.FlowUnknown[panel.OnlyPipe()])
        pipe->FlowRate = 0 - pipe->FlowRate;  // no negative zero
    ShowFlow(project, panel);
    panel.start.reference = end == PipeEnd::Start;
    panel.end.reference = end == PipeEnd::End;
}

}  // namespace idrova
