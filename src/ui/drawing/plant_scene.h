// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsScene>

#include "editor/drawing_surface.h"
#include "ui/drawing/cell_icons.h"

namespace idrova {

class GridItem;
class LabelItem;

/// The drawing in the project's screen units. `Grid` drops what was drawn; every element is then
/// added as an item of its own above the one that paints all cells.
class PlantScene : public QGraphicsScene, public DrawingSurface {
  public:
    PlantScene(const Project& project, const std::filesystem::path& folder);

    void Grid(int firstColumn, int firstRow) override;
    void CellIcon(ScreenPoint corner, std::string_view file) override;
    void PipeLine(int pipe, ScreenPoint from, ScreenPoint to, Rgb colour) override;
    void PointMarker(ScreenPoint centre) override;
    void ArrowLine(ScreenPoint from, ScreenPoint to) override;
    void TextLabel(ScreenPoint corner, std::string_view text, Rgb background) override;
    void LeaderLine(ScreenPoint from, ScreenPoint to) override;
    void LeaderLabel(ScreenPoint from, ScreenPoint to, std::string_view text,
                     Rgb background) override;

    void ShowCursor(int place);

  private:
    LabelItem* MakeLabel(std::string_view text, Rgb background);
    /// As near to `corner` as the whole label can be seen.
    void PlaceLabel(LabelItem& label, QPointF corner) const;
    void AddLine(ScreenPoint from, ScreenPoint to, const QPen& pen, double layer);

    const Project& project_;
    CellIcons icons_;
    GridItem* grid_;
    QGraphicsItem* elements_;  ///< parent of everything but the grid
};

}  // namespace idrova
