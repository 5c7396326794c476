// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/data_labels.h"

#include <cstdlib>
#include <set>
#include <utility>

#include "base/number_text.h"
#include "editor/grid_view.h"

namespace idrova {
namespace {

std::string LabelText(const Project& project, int number) {
    const float shown = project.Points[number].Pressure / project.PressureUnitFactor;
    return "P" + GeneralText(number) + "=" + FormatNumber(shown, "##.###");
}

/// A point in the column of one labelled before has its label above, so that the two stay apart,
/// where there is room above the grid; of those that would still hide each other, each stands
/// further away than the one before.
void LabelPoints(const Project& project, const Editor& editor, DrawingSurface& surface) {
    const int half = project.Grid.CellWidth / 2;
    std::set<int> columns;
    std::set<std::pair<int, int>> taken;
    for (int i = 1; i <= project.npres; ++i) {
        const PointRec& point = project.Points[i];
        if (!point.IsDrawn()) continue;
        const bool below = columns.insert(point.X).second;
        ScreenPoint corner{point.X + half, below ? point.Y + half : point.Y - 6 * half};
        int step = -2 * half;
        if (Shown(project, editor, corner).y < project.Grid.GridTop - 2 * half) {
            corner.y = point.Y + half;
            step = 2 * half;
        }
        while (!taken.insert({corner.x, corner.y}).second) corner.y += step;
        if (!IsOnGrid(project, Shown(project, editor, {point.X, point.Y}))) continue;
        surface.TextLabel(
            Shown(project, editor, corner), LabelText(project, i),
            project.PressureUnknown[i] ? drawing_colour::kUnknown : drawing_colour::kKnown);
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

void DrawArrows(const Project& project, const Editor& editor, DrawingSurface& surface) {
    for (int i = 1; i <= project.numtubo; ++i) {
        const PipeRec& pipe = project.Pipes[i];
        if (!pipe.IsDrawn()) continue;
        auto part = ShownPart(project, editor, pipe);
        if (!part) continue;
        if (project.Points[pipe.StartPoint].Pressure < project.Points[pipe.EndPoint].Pressure) {
            std::swap(part->from, part->to);
        }
        DrawArrow(project, *part, surface);
    }
}

}  // namespace

std::optional<PipePart> ShownPart(const Project& project, const Editor& editor,
                                  const PipeRec& pipe) {
    const ScreenPoint from = Shown(project, editor, {pipe.X1, pipe.Y1});
    const ScreenPoint to = Shown(project, editor, {pipe.X2, pipe.Y2});
    const PipePart part{ClampToGrid(project, from), ClampToGrid(project, to)};
    const bool aside = from.x == to.x ? part.from.x != from.x : part.from.y != from.y;
    if (aside || part.from == part.to) return std::nullopt;
    return part;
}

void ApplyDataLabels(const Project& project, const Editor& editor, DrawingSurface& surface) {
    if (!editor.DataShown) return;
    LabelPoints(project, editor, surface);
    DrawArrows(project, editor, surface);
}

}  // namespace idrova
