// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsScene>
#include <vector>

#include "editor/drawing_list.h"
#include "ui/drawing/cell_icons.h"

namespace idrova {

class GridItem;

/// The drawing in the project's screen units: an item that paints all cells, and above it one for
/// each element.
class PlantScene : public QGraphicsScene {
  public:
    PlantScene(const Project& project, const std::filesystem::path& folder);

    /// Shows this drawing; what was shown already is not painted anew.
    void Show(DrawingList drawing);

    void ShowCursor(int place);

  private:
    void RemoveAll();
    std::vector<QGraphicsItem*> TakeItemsOf(const DrawingList& drawing);
    QGraphicsItem* AddElement(const DrawnElement& element);
    QGraphicsItem* MakeItem(const DrawnElement& element);
    QGraphicsItem* MakeFill(const DrawnElement& element) const;
    QGraphicsItem* MakeIcon(const DrawnElement& element);
    QGraphicsItem* MakeLabel(const DrawnElement& element) const;
    QRectF CellAt(ScreenPoint corner) const;

    const Project& project_;
    CellIcons icons_;
    GridItem* grid_;
    QGraphicsItem* elements_ = nullptr;  ///< parent of `items_`
    DrawingList shown_;
    std::vector<QGraphicsItem*> items_;  ///< of the elements shown, in their order
};

}  // namespace idrova
