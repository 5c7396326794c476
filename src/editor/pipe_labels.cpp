// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/pipe_labels.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "base/number_text.h"
#include "editor/grid_view.h"
#include "editor/label_places.h"
#include "editor/pipe_panel.h"
#include "model/drawn_records.h"

namespace idrova {
namespace {

/// Four digits, or all before the point.
std::string ShortText(double value) {
    const double size = std::abs(value);
    return FixedText(value, size >= 1000 ? 0 : size >= 100 ? 1 : size >= 10 ? 2 : 3);
}

/// "68.9 mm 40 m"; a question mark for what is missing.
std::string SizesText(const Settings& settings, const PipeRec& pipe) {
    const auto text = [](float value, double factor) {
        return value == 0 ? "?" : ScaledText(value, factor);
    };
    std::string size = text(pipe.Diameter, kMillimetresPerMetre);
    if (settings.SectionType == Section::Rectangular) {
        size += "x" + text(pipe.OuterSize, kMillimetresPerMetre);
    }
    return size + " mm " + text(pipe.Length, 1) + " m";
}

double FigureOf(LabelKind kind, const ComputedPipe& pipe) {
    if (kind == LabelKind::Flows) return std::abs(pipe.flow) * kSecondsPerHour;
    return kind == LabelKind::Velocities ? pipe.velocity : pipe.lossPerMetre;
}

bool IsBeyondLimit(const Editor& editor, const ComputedPipe& pipe) {
    if (editor.labels == LabelKind::Velocities) {
        return IsAbove(pipe.velocity, editor.limits.velocity);
    }
    return editor.labels == LabelKind::Losses && IsAbove(pipe.lossPerMetre, editor.limits.loss);
}

struct PipeLabel {
    std::string text;  ///< empty without a label
    Rgb ground = drawing_colour::kKnown;
};

PipeLabel LabelOf(const Project& project, const Editor& editor, int number) {
    if (editor.labels == LabelKind::Numbers) return {GeneralText(number)};
    if (editor.labels == LabelKind::Sizes) {
        return {SizesText(project.settings, project.Pipes[number])};
    }
    const auto computed = editor.computed.find(number);
    if (computed == editor.computed.end()) return {};
    PipeLabel label{ShortText(FigureOf(editor.labels, computed->second))};
    const bool given = editor.labels == LabelKind::Flows && computed->second.flowGiven;
    if (!given) label.ground = drawing_colour::kUnknown;
    if (IsBeyondLimit(editor, computed->second)) label.ground = drawing_colour::kBeyondLimit;
    if (editor.resultsOld) label.ground = drawing_colour::kOld;
    return label;
}

void CoverAround(ScreenPoint middle, int reach, LabelPlaces& places) {
    places.Cover({middle.x - reach, middle.y - reach, 2 * reach, 2 * reach});
}

void CoverPlant(const Project& project, const Editor& editor, LabelPlaces& places) {
    const int cell = project.Grid.CellWidth;
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        const auto part = ShownPart(project, editor, pipe);
        if (!part) continue;
        const auto [left, right] = std::minmax(part->from.x, part->to.x);
        const auto [top, bottom] = std::minmax(part->from.y, part->to.y);
        const int reach = cell / 8;
        places.Cover(
            {left - reach, top - reach, right - left + 2 * reach, bottom - top + 2 * reach});
        CoverAround({(left + right) / 2, (top + bottom) / 2}, cell / 4, places);  // the arrow
    }
    for (const auto& [number, point] : DrawnPoints(project)) {
        const bool icon = project.Cells[point.Cell].Placed;
        CoverAround(Shown(project, editor, {point.X, point.Y}), icon ? cell / 2 : cell / 4, places);
    }
}

}  // namespace

void LabelPipes(const Project& project, const Editor& editor, DrawingSurface& surface) {
    LabelPlaces places(project, {0, 0});
    CoverPlant(project, editor, places);
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        const auto part = ShownPart(project, editor, pipe);
        if (!part) continue;
        const PipeLabel label = LabelOf(project, editor, number);
        if (label.text.empty()) continue;
        const ScreenPoint corner = places.BesidePipe(*part, label.text.size());
        if (const auto leader = places.LeaderOf(*part, corner, label.text.size())) {
            surface.LeaderLine(leader->from, leader->to);
        }
        surface.TextLabel(corner, label.text, label.ground);
    }
}

}  // namespace idrova
