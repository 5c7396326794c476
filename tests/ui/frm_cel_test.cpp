// SPDX-License-Identifier: GPL-3.0-or-later

#include <QScrollBar>
#include <QStatusBar>

#include "drawing_window.h"
#include "editor/messages.h"
#include "projectfile/messages.h"

namespace idrova {
namespace {

/// Where the ends of a pipe lie, as cells.
std::pair<int, int> CellsOf(const Project& project, int pipe) {
    const PipeRec& record = project.Pipes[pipe];
    return {project.Points[record.StartPoint].Cell, project.Points[record.EndPoint].Cell};
}

TEST_F(DrawingWindow, TakesClicksAndDragsInTheRightCellsAtAnySize) {
    for (const QSize size : {QSize(1900, 1050), QSize(900, 1000), QSize(700, 620)}) {
        mdi->resize(size);
        QApplication::processEvents();
        Draw(1, 1, 50, 1);
        QTest::mousePress(View().viewport(), Qt::LeftButton, {}, PlaceOf(1, 50));
        QTest::mouseRelease(View().viewport(), Qt::LeftButton, Qt::ShiftModifier, PlaceOf(50, 50));
        EXPECT_EQ(CellsOf(project, 1), std::pair(1, 50));
        EXPECT_EQ(CellsOf(project, 2), std::pair(2451, 2500));
        EXPECT_EQ(LinesDrawn(), 2);
        EXPECT_EQ(program->editor.firstCell, 2500) << "the next begins there";
        for (int i = 0; i < 2; ++i) QTest::keyClick(&View(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(LinesDrawn(), 0);
    }
    boxes.Expect(kLengthZero);
    Click(5, 5);
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, PlaceOf(5, 5));
    EXPECT_EQ(program->editor.state, InsertState::FirstPoint) << "a double click is two clicks";
}

TEST_F(DrawingWindow, IsUsedByKeyboardToo) {
    QWidget& view = View();
    view.setFocus(Qt::TabFocusReason);
    const auto keys = [&view](std::initializer_list<Qt::Key> pressed,
                              Qt::KeyboardModifier modifier = Qt::NoModifier) {
        for (const Qt::Key key : pressed) QTest::keyClick(&view, key, modifier);
    };
    keys({Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return});
    keys({Qt::Key_Right}, Qt::ControlModifier);
    keys({Qt::Key_Left, Qt::Key_Left, Qt::Key_Left, Qt::Key_Enter});
    EXPECT_EQ(CellsOf(project, 1), (std::pair{102, 104}));
    EXPECT_EQ(mdi->statusBar()->currentMessage(), "Column 4, row 3 (cell 104)");
    keys({Qt::Key_Left, Qt::Key_Menu, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Escape});
    EXPECT_EQ(program->editor.state, InsertState::FirstPoint);
    EXPECT_NE(Window("FrmCel"), nullptr);
    boxes.Expect(AskDeletePipe(1));
    keys({Qt::Key_Delete, Qt::Key_Home, Qt::Key_Return, Qt::Key_End, Qt::Key_Return});
    EXPECT_EQ(CellsOf(project, 2), (std::pair{101, 150}));
    keys({Qt::Key_Home, Qt::Key_Menu});
    keys({Qt::Key_Menu}, Qt::ControlModifier);
    EXPECT_EQ(project.CurrentPipe, 0) << "taken out of the selection";
    Click(9, 9);  // the mouse takes the cursor along
    keys({Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(CellsOf(project, 3).second, CellAt(9, 10, 50));
}

TEST_F(DrawingWindow, TheKeyboardGoesOnToTheCommandPanelAndBack) {
    const auto press = [](Qt::Key key, Qt::KeyboardModifier modifier = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifier);
        return QApplication::focusWidget()->objectName();
    };
    for (const Qt::Key away : {Qt::Key_F4, Qt::Key_Tab}) {
        View().setFocus();
        EXPECT_EQ(press(away), "Combo1");
        EXPECT_EQ(press(Qt::Key_F4), "Drawing");
        EXPECT_EQ(press(Qt::Key_Tab, Qt::ShiftModifier), "Slider1");
    }
    Child<QWidget>("Command3").setFocus();
    press(Qt::Key_Return);
    EXPECT_TRUE(IsArmed(program->editor));
}

TEST_F(DrawingWindow, ScrollsWithItsBars) {
    Draw(2, 5, 8, 5);
    const auto& bar = Child<QScrollBar>("ScrX");
    EXPECT_EQ(std::pair(bar.minimum(), bar.maximum()), std::pair(1, 250));
    Do("ScrX#9");
    EXPECT_EQ(LinesDrawn(), 0);
    Do("ScrY#3");
    Draw(1, 1, 1, 4);
    EXPECT_EQ(CellsOf(project, 2), (std::pair{CellAt(9, 3, 50), CellAt(9, 6, 50)}));
    boxes.Expect(kLeaveProject);
    Choose("Nuovo");
    EXPECT_EQ(std::pair(bar.value(), LinesDrawn()), std::pair(1, 0));
    EXPECT_FALSE(Item("Annulla").isEnabled());
}

TEST_F(DrawingWindow, AComponentIsHintedAndShowsWithoutItsIcon) {
    Draw(8, 5, 2, 5);
    Do("Command3");
    EXPECT_EQ(mdi->findChild<QLabel*>("Label2")->text(), "insert selected component");
    const ScreenPoint centre = CellCentre(project, CellAt(5, 5, 50));
    const QRect arrow(View().mapFromScene(QPointF(centre.x - 80, centre.y - 50)), QSize(1, 1));
    const auto pixel = [&] { return View().grab(arrow).toImage().pixel(0, 0); };
    const QRgb before = pixel();
    Click(5, 5);
    EXPECT_NE(pixel(), before);
    EXPECT_EQ(Item("Annulla").text(), "&Undo insert pump");
    Choose("Annulla");
    EXPECT_EQ(pixel(), before);
    Choose("Tabella");
    EXPECT_FALSE(Item("Annulla").isEnabled());
}

}  // namespace
}  // namespace idrova
