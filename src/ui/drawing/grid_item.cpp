// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/drawing/grid_item.h"

#include <QGraphicsScene>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include "ui/drawing/drawing_style.h"

namespace idrova {

GridItem::GridItem(const Project& project) : project_(project) {
    setFlag(ItemUsesExtendedStyleOption);  // which tells what is exposed
}

void GridItem::Start(int firstColumn, int firstRow) {
    if (firstColumn == firstColumn_ && firstRow == firstRow_) return;
    firstColumn_ = firstColumn;
    firstRow_ = firstRow;
    update();
}

void GridItem::ShowCursor(int place) {
    if (place == cursor_) return;
    const QRectF before = CursorRect();
    cursor_ = place;
    for (const QRectF& changed : {before, CursorRect()}) {
        if (!changed.isEmpty()) update(changed);
    }
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

QRectF GridItem::CursorRect() const {
    if (cursor_ == 0) return {};
    const int column = (cursor_ - 1) % project_.GridSize + 1;
    const int row = (cursor_ - 1) / project_.GridSize + 1;
    const double pen = drawing_style::kCursorWidth;
    return CellRect(column, row).adjusted(-pen, -pen, pen, pen);
}

void GridItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option,
                     QWidget* /*widget*/) {
    PaintCells(*painter, option->exposedRect);
    PaintHeaders(*painter, option->exposedRect);
    PaintCursor(*painter);
}

void GridItem::PaintCells(QPainter& painter, const QRectF& exposed) const {
    const int size = project_.GridSize;
    const QRectF all = CellRect(1, 1) | CellRect(size, size);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(all & exposed, ToQt(drawing_colour::kCell));
    painter.setPen(QPen(drawing_style::kGridLine, 0));
    for (int i = 1; i <= size + 1; ++i) {
        const QPointF corner = CellRect(i, i).topLeft();
        painter.drawLine(QPointF(corner.x(), all.top()), QPointF(corner.x(), all.bottom()));
        painter.drawLine(QPointF(all.left(), corner.y()), QPointF(all.right(), corner.y()));
    }
}

void GridItem::PaintHeaders(QPainter& painter, const QRectF& exposed) const {
    painter.setPen(scene()->palette().color(QPalette::Text));
    painter.setFont(drawing_style::Font(drawing_style::kHeaderHeight));
    const auto paint = [&](const QRectF& cell, int number) {
        if (!cell.intersects(exposed)) return;
        painter.drawText(cell, Qt::AlignCenter, QString::number(number));
    };
    for (int i = 1; i <= project_.GridSize; ++i) {
        paint(CellRect(i, 0), firstColumn_ + i - 1);
        paint(CellRect(0, i), firstRow_ + i - 1);
    }
}

void GridItem::PaintCursor(QPainter& painter) const {
    if (cursor_ == 0) return;
    const double pen = drawing_style::kCursorWidth;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(drawing_style::kCursor, pen));
    painter.drawRect(CursorRect().adjusted(pen, pen, -pen, -pen));
}

}  // namespace idrova
