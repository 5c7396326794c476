// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsView>
#include <functional>

#include "editor/cell_click.h"
#include "model/project.h"

namespace idrova {

/// Shows the whole drawing as large as the window allows, or a part of it larger, and turns mouse
/// and keyboard into presses on places; Ctrl and the wheel zoom. Arrow keys move a cell cursor,
/// with Ctrl by five cells, Home and End to the edges; Enter is the left button, the menu key or
/// Shift+F10 the right one, R turns the selected pump.
class PlantView : public QGraphicsView {
  public:
    PlantView(QGraphicsScene* scene, const Project& project);

    /// One step larger or smaller, about the middle; not smaller than the whole drawing.
    void ZoomIn();
    void ZoomOut();
    /// Shows the whole drawing.
    void Fit();
    bool IsZoomed() const { return zoom_ > 1; }
    /// Brings a part of the drawing into sight, unless some of it is.
    void Reveal(const QRectF& part);

    /// The drawing was zoomed or fitted.
    std::function<void()> zoomed = [] {};
    std::function<void(int place, MouseButton button, HeldKey held)> press;
    /// The left button was dragged from the place of its press to another.
    std::function<void(int place, HeldKey held)> drop;
    /// The mouse or the keyboard's cursor is on another place; 0 beside the grid.
    std::function<void(int place)> hover;
    std::function<void(int place)> moveCursor;
    std::function<void()> abort;
    std::function<void()> turnPump;
    std::function<void()> remove;
    /// What a tip says of a place; empty for none.
    std::function<QString(int place)> tip;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    int PlaceOf(const QPointF& position) const;
    void Zoom(double zoom, QPoint fixed);
    void ShowZoom();
    void MoveCursor(int columns, int rows);
    bool MoveByKey(const QKeyEvent& event);

    const Project& project_;
    int cursor_ = 1;
    double zoom_ = 1;   ///< 1 shows the whole drawing
    QPoint pressedAt_;  ///< where the left button went down
};

}  // namespace idrova
