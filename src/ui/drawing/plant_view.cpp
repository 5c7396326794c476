// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/drawing/plant_view.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "editor/grid_view.h"

namespace idrova {

PlantView::PlantView(QGraphicsScene* scene, const Project& project)
    : QGraphicsView(scene), project_(project) {
    setRenderHint(QPainter::Antialiasing);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName("Plant drawing");
}

int PlantView::PlaceOf(const QPointF& position) const {
    const QPointF at = mapToScene(position.toPoint());
    return PlaceUnder(project_, static_cast<int>(std::floor(at.x())),
                      static_cast<int>(std::floor(at.y())));
}

void PlantView::mousePressEvent(QMouseEvent* event) {
    const int place = PlaceOf(event->position());
    if (place == 0) {
        if (event->button() == Qt::RightButton) abort();
        return;
    }
    cursor_ = place;
    moveCursor(0);  // the mouse needs none
    if (event->button() == Qt::LeftButton) press(place, MouseButton::Left);
    if (event->button() == Qt::RightButton) press(place, MouseButton::Right);
}

void PlantView::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);  // two quick clicks are two clicks
}

void PlantView::mouseMoveEvent(QMouseEvent* event) {
    hover(PlaceOf(event->position()));
}

void PlantView::MoveCursor(int columns, int rows) {
    const int size = project_.GridSize;
    const int column = std::clamp((cursor_ - 1) % size + 1 + columns, 1, size);
    const int row = std::clamp((cursor_ - 1) / size + 1 + rows, 1, size);
    cursor_ = CellAt(column, row, size);
    moveCursor(cursor_);
    hover(cursor_);
}

void PlantView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Left:
            return MoveCursor(-1, 0);
        case Qt::Key_Right:
            return MoveCursor(1, 0);
        case Qt::Key_Up:
            return MoveCursor(0, -1);
        case Qt::Key_Down:
            return MoveCursor(0, 1);
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return press(cursor_, MouseButton::Left);
        case Qt::Key_Menu:
            return press(cursor_, MouseButton::Right);
        case Qt::Key_F10:
            if (event->modifiers() == Qt::ShiftModifier) return press(cursor_, MouseButton::Right);
            return event->ignore();
        case Qt::Key_Escape:
            return abort();
        case Qt::Key_R:
            if (event->modifiers() == Qt::NoModifier) return turnPump();
            return event->ignore();
        default:
            event->ignore();
    }
}

void PlantView::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();  // the press has done its work already
}

void PlantView::focusInEvent(QFocusEvent* event) {
    QGraphicsView::focusInEvent(event);
    const bool byKey =
        event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byKey) MoveCursor(0, 0);
}

void PlantView::focusOutEvent(QFocusEvent* event) {
    QGraphicsView::focusOutEvent(event);
    moveCursor(0);
}

void PlantView::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void PlantView::resizeEvent(QResizeEvent* event) {
    QGraphicsView::resizeEvent(event);
    fitInView(sceneRect(), Qt::KeepAspectRatio);
}

}  // namespace idrova
