// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "editor/drawing_surface.h"

namespace idrova {

enum class ElementKind {
    CellFill,
    CellIcon,
    PipeLine,
    PointMarker,
    ArrowLine,
    TextLabel,
    LeaderLine,
    LeaderLabel,
};

/// One element of a drawing: the arguments of the `DrawingSurface` call of its kind.
struct DrawnElement {
    ElementKind kind = ElementKind::PointMarker;
    ScreenPoint from, to;  ///< a corner or a centre stands in `from`
    int pipe = 0;
    std::string text;  ///< or the icon's file
    Rgb colour;        ///< of a label: its ground

    bool operator==(const DrawnElement&) const = default;
};

/// A drawing as a value: what was drawn, in order. Two can be compared, so that only what differs
/// is painted anew.
class DrawingList final : public DrawingSurface {
  public:
    void Grid(int firstColumn, int firstRow) override;
    void CellFill(ScreenPoint corner, Rgb colour) override;
    void CellIcon(ScreenPoint corner, std::string_view file) override;
    void PipeLine(int pipe, ScreenPoint from, ScreenPoint to, Rgb colour) override;
    void PointMarker(ScreenPoint centre) override;
    void ArrowLine(ScreenPoint from, ScreenPoint to) override;
    void TextLabel(ScreenPoint corner, std::string_view text, Rgb background) override;
    void LeaderLine(ScreenPoint from, ScreenPoint to) override;
    void LeaderLabel(ScreenPoint from, ScreenPoint to, std::string_view text,
                     Rgb background) override;

    int firstColumn = 1, firstRow = 1;
    std::vector<DrawnElement> elements;
};

}  // namespace idrova
