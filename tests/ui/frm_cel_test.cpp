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

TEST_F(DrawingWindow, TakesClicksInTheRightCellsAtAnySize) {
    for (const QSize size : {QSize(1900, 1050), QSize(900, 1000), QSize(700, 620)}) {
        mdi->resize(size);
        QApplication::processEvents();
        ResetProject(project);
        RedrawProject(project, program->editor);
        Draw(1, 1, 50, 1);
        Draw(1, 50, 50, 50);
        EXPECT_EQ(CellsOf(project, 1), std::pair(1, 50));
        EXPECT_EQ(CellsOf(project, 2), std::pair(2451, 2500));
        EXPECT_EQ(LinesDrawn(), 2);
    }
    boxes.Expect(kLengthZero);
    Click(5, 5);
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, PlaceOf(5, 5));
    EXPECT_EQ(program->editor.state, InsertState::FirstPoint) << "a double click is two clicks";
}

TEST_F(DrawingWindow, IsUsedByKeyboardToo) {
    QWidget& view = View();
    view.setFocus(Qt::TabFocusReason);
    const auto keys = [&view](std::initializer_list<Qt::Key> pressed) {
        for (const Qt::Key key : pressed) QTest::keyClick(&view, key);
    };
    keys({Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_Right, Qt::Key_Return});
    keys({Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Enter});
    ASSERT_EQ(project.numtubo, 1);
    EXPECT_EQ(CellsOf(project, 1), (std::pair{102, 104}));
    EXPECT_EQ(mdi->statusBar()->currentMessage(), "Column 4, row 3 (cell 104)");
    keys({Qt::Key_Left, Qt::Key_Menu});
    EXPECT_TRUE(program->editor.pipeSelected);
    keys({Qt::Key_Return, Qt::Key_Escape, Qt::Key_Escape});
    EXPECT_EQ(program->editor.state, InsertState::FirstPoint);
    EXPECT_NE(Window("FrmCel"), nullptr);
    Click(9, 9);  // the mouse takes the cursor along
    keys({Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(CellsOf(project, 2).second, CellAt(9, 10, 50));
}

TEST_F(DrawingWindow, TheKeyboardGoesOnToTheCommandPanelAndBack) {
    for (const int tabs : {0, 1}) {  // by F4, by Tab
        View().setFocus();
        if (tabs == 0) QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
        for (int i = 0; i < tabs; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_TRUE(mdi->Panel().isAncestorOf(QApplication::focusWidget()));
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "Combo1") << tabs;
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
        EXPECT_EQ(QApplication::focusWidget(), &View());
        QTest::keyClick(&View(), Qt::Key_Tab, Qt::ShiftModifier);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "Slider1");
        Child<QWidget>("Command3").setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_TRUE(IsArmed(program->editor));
        AbortInsertion(program->editor);
    }
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
    EXPECT_EQ(bar.value(), 1);
    EXPECT_EQ(LinesDrawn(), 0);
}

TEST_F(DrawingWindow, AComponentIsHintedAndShowsWithoutItsIcon) {
    Draw(8, 5, 2, 5);
    Select(1, 1);
    Do("Command3");
    EXPECT_EQ(mdi->findChild<QLabel*>("Label2")->text(), "insert selected component");
    const ScreenPoint centre = CellCentre(project, CellAt(5, 5, 50));
    const QRect arrow(View().mapFromScene(QPointF(centre.x - 80, centre.y - 50)), QSize(1, 1));
    const auto pixel = [&] { return View().grab(arrow).toImage().pixel(0, 0); };
    const QRgb before = pixel();
    Click(5, 5);
    EXPECT_NE(pixel(), before);
}

}  // namespace
}  // namespace idrova
