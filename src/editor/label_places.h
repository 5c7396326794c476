// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <vector>

#include "editor/grid_view.h"
#include "model/project.h"

namespace idrova {

struct LabelBox {
    int left = 0, top = 0, width = 0, height = 0;
};

/// Finds a place for each label where it hides none of those before, nor what was named with
/// `Cover`. Positions are those of the unscrolled drawing for points, of the shown one for pipes.
class LabelPlaces {
  public:
    /// `scrolled` is the position that the drawing shows at its own origin.
    LabelPlaces(const Project& project, ScreenPoint scrolled);

    /// No label may stand here.
    void Cover(const LabelBox& box);

    /// Top-left corner of the label of a point. The first label of a column stands below its point,
    /// the others above, where there is room above the grid; where that place is taken on the other
    /// side, or further away. At the right edge it stands further left, so that all of it is seen.
    ScreenPoint BesidePoint(const PointRec& point, std::size_t letters);

    /// Top-left corner of the label of a pipe: over its middle, of an upright pipe on its right;
    /// where that place is taken, or not all of it would be seen, on the other side, further along
    /// the pipe, or further away.
    ScreenPoint BesidePipe(const PipePart& part, std::size_t letters);

    /// Where a line from the point meets a label that does not stand beside it: not straight above
    /// or below, where it would run along an upright pipe.
    std::optional<ScreenPoint> LeaderEnd(const PointRec& point, ScreenPoint corner,
                                         std::size_t letters) const;

    struct Leader {
        ScreenPoint from, to;
    };
    /// The line from a pipe to a label that does not stand beside it.
    std::optional<Leader> LeaderOf(const PipePart& part, ScreenPoint corner,
                                   std::size_t letters) const;

  private:
    /// Where a label stands: from the middle of the pipe along it and away from it, above or below,
    /// of an upright pipe on the right or the left.
    struct PipeSide {
        int along = 0, away = 0;
        bool first = true;
    };

    LabelBox PlaceFor(const PipePart& part, std::size_t letters) const;
    LabelBox BoxAt(const PipePart& part, const PipeSide& side, std::size_t letters) const;
    int WidthOf(std::size_t letters) const;
    int TextHeight() const { return cell_ * 2 / 3; }
    bool IsFree(const LabelBox& box) const;
    bool IsSeen(const LabelBox& box) const;

    int cell_, leftmost_, highest_, rightmost_, lowest_;
    std::set<int> columns_;
    std::map<int, std::vector<LabelBox>> taken_;  ///< by row of cells
};

}  // namespace idrova
