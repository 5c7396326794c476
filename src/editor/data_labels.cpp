// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/data_labels.h"

#include <cstdlib>
#include <utility>

#include "base/number_text.h"
#include "editor/grid_view.h"
#include "editor/label_places.h"
#include "editor/pipe_labels.h"
#include "model/drawn_records.h"

namespace idrova {
namespace {

std::string LabelText(const Project& project, int number) {
    const float shown = project.Points[number].Pressure / project.settings.PressureUnitFactor;
    return "P" + GeneralText(number) + "=" + FormatNumber(shown, "##.###");
}

Rgb GroundOf(const Project& project, const Editor& editor, int point) {
    const bool computed = project.PressureUnknown[point];
    if (computed && editor.resultsOld) return drawing_colour::kOld;
    const bool held = !editor.resultsOld && !editor.computed.empty();
    if (held && IsBeyond(editor.limits, project.Points[point].Pressure)) {
        return drawing_colour::kBeyondLimit;
    }
    return computed ? drawing_colour::kUnknown : drawing_colour::kKnown;
}

void LabelPoints(const Project& project, const Editor& editor, DrawingSurface& surface) {
    const ScreenPoint origin = Shown(project, editor, {0, 0});
    LabelPlaces places(project, {-origin.x, -origin.y});
    for (const auto& [number, point] : DrawnPoints(project)) {
        const std::string text = LabelText(project, number);
        // Points that are scrolled away take their places too: no label moves by scrolling.
        const ScreenPoint corner = places.BesidePoint(point, text.size());
        const ScreenPoint from = Shown(project, editor, {point.X, point.Y});
        if (!IsOnGrid(project, from)) continue;
        if (const auto end = places.LeaderEnd(point, corner, text.size())) {
            surface.LeaderLine(from, Shown(project, editor, *end));
        }
        surface.TextLabel(Shown(project, editor, corner), text, GroundOf(project, editor, number));
    }
}

int Sign(int value) {
    return value == 0 ? 0 : value / std::abs(value);
}

/// An arrow head in the middle of the part: two strokes that end in its tip.
void DrawArrow(const Project& project, const PipePart& part, DrawingSurface& surface) {
    const int size = project.Grid.CellWidth / 2;
    const int dx = Sign(part.to.x - part.from.x) * size;
    const int dy = Sign(part.to.y - part.from.y) * size;
    const ScreenPoint tip{(part.from.x + part.to.x + dx) / 2, (part.from.y + part.to.y + dy) / 2};
    surface.ArrowLine({tip.x - dx - dy / 2, tip.y - dy - dx / 2}, tip);
    surface.ArrowLine({tip.x - dx + dy / 2, tip.y - dy + dx / 2}, tip);
}

/// Which way an arrow of the pipe points: 1 from its start to its end, -1 back, 0 without arrow.
int ArrowSign(const Project& project, const Editor& editor, int number) {
    if (editor.labels == LabelKind::Sizes || editor.labels == LabelKind::Numbers) return 0;
    if (editor.labels == LabelKind::Pressures) {
        const PipeRec& pipe = project.Pipes[number];
        const float atStart = project.Points[pipe.StartPoint].Pressure;
        return atStart < project.Points[pipe.EndPoint].Pressure ? -1 : 1;
    }
    const auto computed = editor.computed.find(number);
    if (computed == editor.computed.end() || computed->second.flow == 0) return 0;
    return computed->second.flow < 0 ? -1 : 1;
}

void DrawArrows(const Project& project, const Editor& editor, DrawingSurface& surface) {
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        auto part = ShownPart(project, editor, pipe);
        const int sign = ArrowSign(project, editor, number);
        if (!part || sign == 0) continue;
        if (sign < 0) std::swap(part->from, part->to);
        DrawArrow(project, *part, surface);
    }
}

}  // namespace

void ApplyDataLabels(const Project& project, const Editor& editor, DrawingSurface& surface) {
    if (!editor.DataShown) return;
    if (editor.labels == LabelKind::Pressures) {
        LabelPoints(project, editor, surface);
    } else {
        LabelPipes(project, editor, surface);
    }
    DrawArrows(project, editor, surface);
}

}  // namespace idrova
