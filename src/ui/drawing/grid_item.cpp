// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/drawing/grid_item.h"

#include <QPainter>

#include "ui/drawing/drawing_style.h"

namespace idrova {

void GridItem::Start(int firstColumn, int firstRow) {
    firstColumn_ = firstColumn;
    firstRow_ = firstRow;
    update();
}

void GridItem::ShowCursor(int place) {
    cursor_ = place;
    update();
}

/// Column and row from 0 are the headers'.
QRectF GridItem::CellRect(int column, int row) const {
    const GridGeometry& grid = project_.Grid;
    return {static_cast<double>(grid.GridLeft + (column - 1) * grid.CellWidth),
            static_cast<double>(grid.GridTop + (row - 1) * grid.CellHeight),
            static_cast<double>(grid.CellWidth), static_cast<double>(grid.CellHeight)};
}

QRectF GridItem::boundingRect() const {
    return CellRect(0, 0) | CellRect(project_.GridSize + 1, project_.GridSize + 1);
}

void GridItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/,
                     QWidget* /*widget*/) {
    PaintCells(*painter);
    PaintHeaders(*painter);
    PaintCursor(*painter);
}

void GridItem::PaintCells(QPainter& painter) const {
    const int size = project_.GridSize;
    const QRectF all = CellRect(1, 1) | CellRect(size, size);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(all, ToQt(drawing_colour::kCell));
    painter.setPen(QPen(drawing_style::kGridLine, 0));
    for (int i = 1; i <= size + 1; ++i) {
        const QPointF corner = CellRect(i, i).topLeft();
        painter.drawLine(QPointF(corner.x(), all.top()), QPointF(corner.x(), all.bottom()));
        painter.drawLine(QPointF(all.left(), corner.y()), QPointF(all.right(), corner.y()));
    }
}

void GridItem::PaintHeaders(QPainter& painter) const {
    painter.setPen(drawing_style::kHeader);
    painter.setFont(drawing_style::Font(drawing_style::kHeaderHeight));
    for (int i = 1; i <= project_.GridSize; ++i) {
        painter.drawText(CellRect(i, 0), Qt::AlignCenter, QString::number(firstColumn_ + i - 1));
        painter.drawText(CellRect(0, i), Qt::AlignCenter, QString::number(firstRow_ + i - 1));
    }
}

void GridItem::PaintCursor(QPainter& painter) const {
    if (cursor_ == 0) return;
    const int column = (cursor_ - 1) % project_.GridSize + 1;
    const int row = (cursor_ - 1) / project_.GridSize + 1;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(drawing_style::kCursor, drawing_style::kCursorWidth));
    painter.drawRect(CellRect(column, row));
}

}  // namespace idrova
