// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGraphicsScene>
#include <QGraphicsView>
#include <algorithm>

#include "main_window.h"
#include "model/grid.h"
#include "physdata/record_db.h"
#include "ui/drawing/plant_scene.h"
#include "ui/panel/frm_com.h"

namespace idrova {

/// The main window with its drawing, used with the mouse, and the controls of the command panel.
class DrawingWindow : public MainWindow {
  protected:
    DrawingWindow() {
        PutFile(folder / PumpRecord::kFile,
                EncodeRecords(WithRecord({}, PumpRecord{"feed pump", 300000, 0, 100000, 5})));
        PutFile(folder / LossRecord::kFile,
                EncodeRecords(WithRecord({}, LossRecord{"gate valve", 0.2F, 0})));
        Choose("Grafico");
        window = &mdi->Panel();
    }

    /// "L5,3" and "R5,3" are clicks of either button on column 5, row 3, "C5,3" a right one with
    /// Ctrl.
    void Take(const QString& step) override {
        static const QRegularExpression form("^([LRC])(\\d+),(\\d+)$");
        const QRegularExpressionMatch part = form.match(step);
        if (!part.hasMatch()) return MainWindow::Take(step);
        Click(part.captured(2).toInt(), part.captured(3).toInt(),
              step[0] == 'L' ? Qt::LeftButton : Qt::RightButton,
              step[0] == 'C' ? Qt::ControlModifier : Qt::NoModifier);
    }

    QGraphicsView& View() { return Child<QGraphicsView>("Drawing"); }

    QPoint PlaceOf(int column, int row) {
        const ScreenPoint centre = CellCentre(project, CellAt(column, row, project.GridSize));
        return View().mapFromScene(QPointF(centre.x, centre.y));
    }

    void Click(int column, int row, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifier modifier = Qt::NoModifier) {
        QTest::mouseClick(View().viewport(), button, modifier, PlaceOf(column, row));
    }

    void Draw(int column1, int row1, int column2, int row2) {
        Click(column1, row1);
        Click(column2, row2);
    }

    void Select(int column, int row) { Click(column, row, Qt::RightButton); }

    int LinesDrawn() {
        const auto& scene = dynamic_cast<const PlantScene&>(*View().scene());
        return static_cast<int>(
            std::ranges::count(scene.Shown().elements, ElementKind::PipeLine, &DrawnElement::kind));
    }
};

}  // namespace idrova
