// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/drawing/plant_view.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <map>

#include "editor/grid_view.h"

namespace idrova {

namespace {

constexpr int kLongStep = 5;  ///< cells
constexpr double kZoomStep = 1.25;
constexpr double kLargestZoom = 8;
constexpr double kWheelNotch = 120;  ///< as Qt counts it
constexpr int kEdge = 4;             ///< pixels round the whole drawing, as Qt leaves them

HeldKey HeldAt(const QInputEvent& event) {
    if (event.modifiers().testFlag(Qt::ControlModifier)) return HeldKey::Ctrl;
    return event.modifiers().testFlag(Qt::ShiftModifier) ? HeldKey::Shift : HeldKey::None;
}

}  // namespace

PlantView::PlantView(QGraphicsScene* scene, const Project& project)
    : QGraphicsView(scene), project_(project) {
    setRenderHint(QPainter::Antialiasing);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    setTransformationAnchor(NoAnchor);
    setResizeAnchor(AnchorViewCenter);
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
    pressedAt_ = event->position().toPoint();
    if (event->button() == Qt::LeftButton) press(place, MouseButton::Left, HeldAt(*event));
    if (event->button() == Qt::RightButton) press(place, MouseButton::Right, HeldAt(*event));
}

void PlantView::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    const int place = PlaceOf(event->position());
    const bool dragged = (at - pressedAt_).manhattanLength() >= QApplication::startDragDistance() &&
                         place != PlaceOf(pressedAt_);
    if (event->button() != Qt::LeftButton || !dragged || place == 0) return;
    cursor_ = place;
    drop(place, HeldAt(*event));
}

void PlantView::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);  // two quick clicks are two clicks
}

void PlantView::mouseMoveEvent(QMouseEvent* event) {
    hover(PlaceOf(event->position()));
}

void PlantView::leaveEvent(QEvent* /*event*/) {
    hover(0);
}

void PlantView::MoveCursor(int columns, int rows) {
    const int size = project_.GridSize;
    const int column = std::clamp((cursor_ - 1) % size + 1 + columns, 1, size);
    const int row = std::clamp((cursor_ - 1) / size + 1 + rows, 1, size);
    cursor_ = CellAt(column, row, size);
    if (IsZoomed()) {
        const ScreenPoint at = CellCentre(project_, cursor_);
        ensureVisible({QPointF(at.x, at.y), QSizeF()});
    }
    moveCursor(cursor_);
    hover(cursor_);
}

bool PlantView::MoveByKey(const QKeyEvent& event) {
    const int step = event.modifiers().testFlag(Qt::ControlModifier) ? kLongStep : 1;
    const int whole = project_.GridSize;
    const std::map<int, QPoint> moves = {{Qt::Key_Left, {-step, 0}},  {Qt::Key_Right, {step, 0}},
                                         {Qt::Key_Up, {0, -step}},    {Qt::Key_Down, {0, step}},
                                         {Qt::Key_Home, {-whole, 0}}, {Qt::Key_End, {whole, 0}}};
    const auto move = moves.find(event.key());
    if (move == moves.end()) return false;
    MoveCursor(move->second.x(), move->second.y());
    return true;
}

void PlantView::keyPressEvent(QKeyEvent* event) {
    if (MoveByKey(*event)) return;
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return press(cursor_, MouseButton::Left, HeldAt(*event));
        case Qt::Key_Menu:
            return press(cursor_, MouseButton::Right, HeldAt(*event));
        case Qt::Key_F10:
            if (!event->modifiers().testFlag(Qt::ShiftModifier)) return event->ignore();
            return press(cursor_, MouseButton::Right, HeldAt(*event));
        case Qt::Key_Escape:
            return abort();
        case Qt::Key_Delete:
            return remove();
        case Qt::Key_R:
            if (event->modifiers() == Qt::NoModifier) return turnPump();
            return event->ignore();
        default:
            event->ignore();
    }
}

bool PlantView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QGraphicsView::viewportEvent(event);
    const auto* help = dynamic_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), tip(PlaceOf(help->pos())), viewport());
    return true;
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
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        const double notches = event->angleDelta().y() / kWheelNotch;
        Zoom(zoom_ * std::pow(kZoomStep, notches), event->position().toPoint());
        event->accept();
    } else if (IsZoomed()) {
        QGraphicsView::wheelEvent(event);
    } else {
        event->ignore();
    }
}

void PlantView::resizeEvent(QResizeEvent* event) {
    QGraphicsView::resizeEvent(event);
    ShowZoom();
}

void PlantView::ZoomIn() {
    Zoom(zoom_ * kZoomStep, viewport()->rect().center());
}

void PlantView::ZoomOut() {
    Zoom(zoom_ / kZoomStep, viewport()->rect().center());
}

void PlantView::Fit() {
    Zoom(1, {});
}

/// What is shown at `fixed` of the viewport stays there.
void PlantView::Zoom(double zoom, QPoint fixed) {
    constexpr double nearlyWhole = 1.01;  // steps up and down do not cancel to the last bit
    const double wanted = zoom < nearlyWhole ? 1 : std::min(zoom, kLargestZoom);
    if (wanted == zoom_) return;
    const QPointF at = mapToScene(fixed);
    zoom_ = wanted;
    ShowZoom();
    const QPoint moved = mapFromScene(at) - fixed;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + moved.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() + moved.y());
    zoomed();
}

void PlantView::ShowZoom() {
    const auto bars = IsZoomed() ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
    setHorizontalScrollBarPolicy(bars);
    setVerticalScrollBarPolicy(bars);
    if (!IsZoomed()) return fitInView(sceneRect(), Qt::KeepAspectRatio);
    const QSizeF room = maximumViewportSize() - QSize(kEdge, kEdge);
    const double scale =
        std::min(room.width() / sceneRect().width(), room.height() / sceneRect().height()) * zoom_;
    setTransform(QTransform::fromScale(scale, scale));
}

void PlantView::Reveal(const QRectF& part) {
    if (!IsZoomed()) return;
    const QRectF seen = mapToScene(viewport()->rect()).boundingRect();
    // The rectangle of a straight line is empty, and meets nothing.
    if (!seen.intersects(part.adjusted(-1, -1, 1, 1))) ensureVisible(part);
}

}  // namespace idrova
