// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "editor/component_insertion.h"
#include "main_window.h"
#include "model/grid.h"
#include "ui/frm_com.h"

namespace idrova {

/// The main window with its drawing, used with the mouse.
class DrawingWindow : public MainWindow {
  protected:
    DrawingWindow() {
        PumpDb& pumps = program->components.pumps;
        pumps[++pumps.count] = {"feed pump", 300000, 0, 100000, 5};
        LossDb& losses = program->components.losses;
        losses[++losses.count] = {"gate valve", 0.2F, 0};
        program->showComponents();
    }

    QGraphicsView& View() { return Child<QGraphicsView>("Drawing"); }

    void Click(int column, int row, Qt::MouseButton button = Qt::LeftButton) {
        const ScreenPoint centre = CellCentre(project, CellAt(column, row, project.GridSize));
        const QPoint at = View().mapFromScene(QPointF(centre.x, centre.y));
        QTest::mouseClick(View().viewport(), button, {}, at);
    }

    void Draw(int column1, int row1, int column2, int row2) {
        Click(column1, row1);
        Click(column2, row2);
    }

    void Select(int column, int row) { Click(column, row, Qt::RightButton); }

    /// Pipe lines on the scene.
    int LinesDrawn() {
        int lines = 0;
        for (const QGraphicsItem* item : View().scene()->items()) {
            lines += static_cast<int>(item->data(0).isValid());
        }
        return lines;
    }

    QLineEdit& Box(const char* name) { return Child<QLineEdit>(name, &mdi->Panel()); }
    void Type(const char* box, const char* text) { Box(box).setText(text); }
    void Press(const char* button) { Child<QAbstractButton>(button, &mdi->Panel()).click(); }

    Project& project = program->project;
};

}  // namespace idrova
