// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/label_places.h"

#include <algorithm>
#include <cstdlib>

namespace idrova {
namespace {

constexpr int kFarthest = 8;  ///< cells between a pipe and its label

bool Overlap(const LabelBox& one, const LabelBox& other) {
    return one.left < other.left + other.width && other.left < one.left + one.width &&
           one.top < other.top + other.height && other.top < one.top + one.height;
}

bool IsUpright(const PipePart& part) {
    return part.from.x == part.to.x;
}

ScreenPoint MiddleOf(const PipePart& part) {
    return {(part.from.x + part.to.x) / 2, (part.from.y + part.to.y) / 2};
}

}  // namespace

LabelPlaces::LabelPlaces(const Project& project, ScreenPoint scrolled)
    : cell_(project.Grid.CellWidth),
      leftmost_(scrolled.x + project.Grid.GridLeft - cell_),
      highest_(scrolled.y + project.Grid.GridTop - project.Grid.CellHeight),
      rightmost_(scrolled.x + project.Grid.GridLeft + (project.GridSize + 1) * cell_),
      lowest_(scrolled.y + project.Grid.GridTop + (project.GridSize + 1) * cell_) {}

void LabelPlaces::Cover(const LabelBox& box) {
    for (int row = box.top / cell_; row <= (box.top + box.height) / cell_; ++row) {
        taken_[row].push_back(box);
    }
}

ScreenPoint LabelPlaces::BesidePoint(const PointRec& point, std::size_t letters) {
    const int half = cell_ / 2;
    const bool below = columns_.insert(point.X).second;
    LabelBox box{point.X + half, 0, WidthOf(letters), cell_};
    if (point.X < rightmost_) box.left = std::min(box.left, rightmost_ - box.width);
    for (int away = 0;; away += cell_) {
        for (const bool lower : {below, !below}) {
            box.top = lower ? point.Y + half + away : point.Y - 6 * half - away;
            const bool fits = lower || box.top >= highest_;
            if (!fits || !IsFree(box)) continue;
            Cover(box);
            return {box.left, box.top};
        }
    }
}

ScreenPoint LabelPlaces::BesidePipe(const PipePart& part, std::size_t letters) {
    const LabelBox box = PlaceFor(part, letters);
    const int margin = cell_ / 8;
    Cover({box.left - margin, box.top, box.width + 2 * margin, box.height});
    return {box.left, box.top};
}

LabelBox LabelPlaces::PlaceFor(const PipePart& part, std::size_t letters) const {
    const int length = std::abs(part.to.x - part.from.x) + std::abs(part.to.y - part.from.y);
    for (int away = 0; away <= kFarthest * cell_; away += cell_) {
        for (int along = 0; along <= length / 2; along += cell_) {
            for (const PipeSide& side :
                 {PipeSide{along, away, true}, PipeSide{along, away, false},
                  PipeSide{-along, away, true}, PipeSide{-along, away, false}}) {
                const LabelBox box = BoxAt(part, side, letters);
                if (IsSeen(box) && IsFree(box)) return box;
            }
        }
    }
    return BoxAt(part, {}, letters);
}

LabelBox LabelPlaces::BoxAt(const PipePart& part, const PipeSide& side, std::size_t letters) const {
    const ScreenPoint middle = MiddleOf(part);
    const int gap = cell_ / 3 + side.away;
    LabelBox box{0, 0, WidthOf(letters), TextHeight()};
    if (IsUpright(part)) {
        box.left = side.first ? middle.x + gap : middle.x - gap - box.width;
        box.top = middle.y + side.along - box.height / 2;
    } else {
        box.left = middle.x + side.along - box.width / 2;
        box.top = side.first ? middle.y - gap - box.height : middle.y + gap;
    }
    return box;
}

std::optional<ScreenPoint> LabelPlaces::LeaderEnd(const PointRec& point, ScreenPoint corner,
                                                  std::size_t letters) const {
    const int half = cell_ / 2;
    const int bottom = corner.y + TextHeight();
    const bool rightwards = point.X + half <= corner.x + WidthOf(letters);
    const int x = std::max(corner.x, point.X + (rightwards ? half : -half));
    if (corner.y > point.Y + cell_) return ScreenPoint{x, corner.y};
    if (bottom < point.Y - cell_) return ScreenPoint{x, bottom};
    return std::nullopt;
}

std::optional<LabelPlaces::Leader> LabelPlaces::LeaderOf(const PipePart& part, ScreenPoint corner,
                                                         std::size_t letters) const {
    const int right = corner.x + WidthOf(letters);
    const int bottom = corner.y + TextHeight();
    const auto [left, rightEnd] = std::minmax(part.from.x, part.to.x);
    const auto [top, lowerEnd] = std::minmax(part.from.y, part.to.y);
    const ScreenPoint from{std::clamp((corner.x + right) / 2, left, rightEnd),
                           std::clamp((corner.y + bottom) / 2, top, lowerEnd)};
    const ScreenPoint to{std::clamp(from.x, corner.x, right), std::clamp(from.y, corner.y, bottom)};
    if (std::abs(to.x - from.x) <= cell_ && std::abs(to.y - from.y) <= cell_) return std::nullopt;
    return Leader{from, to};
}

int LabelPlaces::WidthOf(std::size_t letters) const {
    return static_cast<int>(letters) * cell_ * 2 / 5;
}

bool LabelPlaces::IsFree(const LabelBox& box) const {
    const auto hides = [&](const LabelBox& other) { return Overlap(box, other); };
    const int first = box.top / cell_;
    const int last = (box.top + box.height) / cell_;
    for (auto at = taken_.lower_bound(first); at != taken_.end() && at->first <= last; ++at) {
        if (std::ranges::any_of(at->second, hides)) return false;
    }
    return true;
}

bool LabelPlaces::IsSeen(const LabelBox& box) const {
    return box.left >= leftmost_ && box.top >= highest_ && box.left + box.width <= rightmost_ &&
           box.top + box.height <= lowest_;
}

}  // namespace idrova
