// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/hover_text.h"

#include <cmath>

#include "base/number_text.h"
#include "editor/pipe_panel.h"
#include "model/pipe_sizes.h"

namespace idrova {
namespace {

/// "53.8 mm (2\")", or the two sides of a rectangle.
std::string SizeText(const Settings& settings, const PipeRec& pipe) {
    const std::string inside = ScaledText(pipe.Diameter, kMillimetresPerMetre);
    if (settings.SectionType == Section::Rectangular) {
        return inside + " x " + ScaledText(pipe.OuterSize, kMillimetresPerMetre) + " mm";
    }
    const int size = NominalSizeOf(pipe.Diameter);
    const std::string name(NominalSizeNames[size]);
    return inside + " mm" + (size == 0 ? "" : " (" + name + "\")");
}

}  // namespace

int PipeUnder(const Project& project, int cell) {
    const CellRec& record = project.Cells[cell];
    return record.Kind == CellKind::Crossed ? record.CrossingPipe : 0;
}

std::string HoverText(const Project& project, int cell) {
    if (project.Cells[cell].Placed) return project.Cells[cell].Name;
    const int number = PipeUnder(project, cell);
    if (number == 0) return {};
    const PipeRec& pipe = project.Pipes[number];
    const std::string size = pipe.Diameter == 0 ? "no diameter" : SizeText(project.settings, pipe);
    const std::string length = pipe.Length == 0 ? "no length" : GeneralText(pipe.Length) + " m";
    return "Pipe " + GeneralText(number) + ": " + size + ", " + length;
}

std::string HoverFlow(double kgPerSecond, double metresPerSecond) {
    const auto hundredths = [](double value) { return GeneralText(std::round(value * 100) / 100); };
    return hundredths(kgPerSecond * kSecondsPerHour) + " kg/h, " + hundredths(metresPerSecond) +
           " m/s";
}

}  // namespace idrova
