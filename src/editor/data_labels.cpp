// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/data_labels.h"

#include <algorithm>
#include <cstdlib>
#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "base/number_text.h"
#include "editor/grid_view.h"
#include "model/drawn_records.h"

namespace idrova {
namespace {

std::string LabelText(const Project& project, int number) {
    const float shown = project.Points[number].Pressure / project.settings.PressureUnitFactor;
    return "P" + GeneralText(number) + "=" + FormatNumber(shown, "##.###");
}

/// Finds a place for each label where it hides none of those before.
class LabelPlaces {
  public:
    LabelPlaces(const Project& project, ScreenPoint scrolled)
        : cell_(project.Grid.CellWidth),
          highest_(scrolled.y + project.Grid.GridTop - project.Grid.CellHeight),
          rightmost_(scrolled.x + project.Grid.GridLeft + (project.GridSize + 1) * cell_) {}

    /// Top-left corner of the label of a point. The first label of a column stands below its point,
    /// the others above, where there is room above the grid; where that place is taken on the other
    /// side, or further away. At the right edge it stands further left, so that all of it is seen.
    ScreenPoint Take(const PointRec& point, std::size_t letters) {
        const int half = cell_ / 2;
        const bool below = columns_.insert(point.X).second;
        ScreenPoint corner{point.X + half, 0};
        if (point.X < rightmost_) {
            corner.x = std::min(corner.x, rightmost_ - WidthOf(letters));
        }
        for (int away = 0;; away += cell_) {
            for (const bool lower : {below, !below}) {
                corner.y = lower ? point.Y + half + away : point.Y - 6 * half - away;
                const bool fits = lower || corner.y >= highest_;
                if (fits && IsFree(corner, letters)) {
                    taken_[corner.y / cell_].push_back({corner, WidthOf(letters)});
                    return corner;
                }
            }
        }
    }

    /// Where a line from the point meets a label that does not stand beside it: not straight above
    /// or below, where it would run along an upright pipe.
    std::optional<ScreenPoint> LeaderEnd(const PointRec& point, ScreenPoint corner,
                                         std::size_t letters) const {
        const int half = cell_ / 2;
        const int bottom = corner.y + cell_ * 2 / 3;
        const bool rightwards = point.X + half <= corner.x + WidthOf(letters);
        const int x = std::max(corner.x, point.X + (rightwards ? half : -half));
        if (corner.y > point.Y + cell_) return ScreenPoint{x, corner.y};
        if (bottom < point.Y - cell_) return ScreenPoint{x, bottom};
        return std::nullopt;
    }

  private:
    struct Label {
        ScreenPoint corner;
        int width;
    };

    int WidthOf(std::size_t letters) const { return static_cast<int>(letters) * cell_ * 2 / 5; }

    bool IsFree(ScreenPoint corner, std::size_t letters) const {
        const int right = corner.x + WidthOf(letters);
        const auto hides = [&](const Label& other) {
            return std::abs(corner.y - other.corner.y) < cell_ &&
                   corner.x < other.corner.x + other.width && other.corner.x < right;
        };
        const int row = corner.y / cell_;
        for (auto at = taken_.lower_bound(row - 1); at != taken_.end() && at->first <= row + 1;
             ++at) {
            if (std::ranges::any_of(at->second, hides)) return false;
        }
        return true;
    }

    int cell_, highest_, rightmost_;
    std::set<int> columns_;
    std::map<int, std::vector<Label>> taken_;  ///< by row of cells
};

Rgb GroundOf(const Editor& editor, bool computed) {
    if (!computed) return drawing_colour::kKnown;
    return editor.resultsOld ? drawing_colour::kOld : drawing_colour::kUnknown;
}

void LabelPoints(const Project& project, const Editor& editor, DrawingSurface& surface) {
    const ScreenPoint origin = Shown(project, editor, {0, 0});
    LabelPlaces places(project, {-origin.x, -origin.y});
    for (const auto& [number, point] : DrawnPoints(project)) {
        const std::string text = LabelText(project, number);
        // Points that are scrolled away take their places too: no label moves by scrolling.
        const ScreenPoint corner = places.Take(point, text.size());
        const ScreenPoint from = Shown(project, editor, {point.X, point.Y});
        if (!IsOnGrid(project, from)) continue;
        if (const auto end = places.LeaderEnd(point, corner, text.size())) {
            surface.LeaderLine(from, Shown(project, editor, *end));
        }
        surface.TextLabel(Shown(project, editor, corner), text,
                          GroundOf(editor, project.PressureUnknown[number]));
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
    for (const auto& [number, pipe] : DrawnPipes(project)) {
        auto part = ShownPart(project, editor, pipe);
        if (!part) continue;
        if (project.Points[pipe.StartPoint].Pressure < project.Points[pipe.EndPoint].Pressure) {
            std::swap(part->from, part->to);
        }
        DrawArrow(project, *part, surface);
    }
}

}  // namespace

void ApplyDataLabels(const Project& project, const Editor& editor, DrawingSurface& surface) {
    if (!editor.DataShown) return;
    LabelPoints(project, editor, surface);
    DrawArrows(project, editor, surface);
}

}  // namespace idrova
