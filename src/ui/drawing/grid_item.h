// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsItem>

#include "model/project.h"

namespace idrova {

/// The cells of the drawing with their headers, and the keyboard's cell cursor.
class GridItem : public QGraphicsItem {
  public:
    explicit GridItem(const Project& project);

    /// Empty cells, and headers that count from these numbers.
    void Start(int firstColumn, int firstRow);
    /// Shows the cursor on a place; 0 hides it.
    void ShowCursor(int place);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    QRectF CellRect(int column, int row) const;
    QRectF CursorRect() const;
    void PaintCells(QPainter& painter, const QRectF& exposed) const;
    void PaintHeaders(QPainter& painter, const QRectF& exposed) const;
    void PaintCursor(QPainter& painter) const;

    const Project& project_;
    int firstColumn_ = 1, firstRow_ = 1;
    int cursor_ = 0;
};

}  // namespace idrova
