// SPDX-License-Identifier: GPL-3.0-or-later

#include <QScrollBar>
#include <cmath>

#include "drawing_window.h"
#include "editor/find_element.h"
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
        Do("L1,1;L50,1");
        QTest::mousePress(View().viewport(), Qt::LeftButton, {}, PlaceOf(1, 50));
        QTest::mouseRelease(View().viewport(), Qt::LeftButton, Qt::ShiftModifier, PlaceOf(50, 50));
        EXPECT_EQ(CellsOf(project, 1), std::pair(1, 50));
        EXPECT_EQ(CellsOf(project, 2), std::pair(2451, 2500));
        EXPECT_EQ(LinesDrawn(), 2);
        EXPECT_EQ(program->editor.firstCell, 2500) << "the next begins there";
        Do("Drawing!Ctrl+Z;Drawing!Ctrl+Z");
        EXPECT_EQ(LinesDrawn(), 0);
    }
    boxes.Expect(kLengthZero);
    Do("L5,5");
    QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, PlaceOf(5, 5));
    EXPECT_EQ(program->editor.state, InsertState::FirstPoint) << "a double click is two clicks";
}

TEST_F(DrawingWindow, IsUsedByKeyboardToo) {
    View().setFocus(Qt::TabFocusReason);
    const auto keys = [this](const QString& names) {
        for (const QString& name : names.split(' ')) Do("Drawing!" + name);
    };
    keys("Up Down Down Right Return Ctrl+Right Left Left Left Enter");
    EXPECT_EQ(CellsOf(project, 1), (std::pair{102, 104}));
    EXPECT_EQ(Shown("message"), "Column 4, row 3 (cell 104)");
    keys("Left Menu Return Esc Esc");
    EXPECT_EQ(program->editor.state, InsertState::FirstPoint);
    EXPECT_NE(Window("FrmCel"), nullptr);
    boxes.Expect(AskDeletePipe(1));
    keys("Del Home Return End Return");
    EXPECT_EQ(CellsOf(project, 2), (std::pair{101, 150}));
    keys("Down");
    EXPECT_EQ(Shown("message"), "Column 50, row 4 (cell 200)");
    keys("Up Home Menu Ctrl+Menu");
    EXPECT_EQ(project.CurrentPipe, 0) << "taken out of the selection";
    Do("L9,9");  // the mouse takes the cursor along
    keys("Down Return");
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
    Do("Command3!");
    EXPECT_TRUE(IsArmed(program->editor));
}

TEST_F(DrawingWindow, ScrollsWithItsBars) {
    Do("L2,5;L8,5");
    const auto& bar = Child<QScrollBar>("ScrX");
    EXPECT_EQ(std::pair(bar.minimum(), bar.maximum()), std::pair(1, 250));
    Do("ScrX#9");
    EXPECT_EQ(LinesDrawn(), 0);
    Do("ScrY#3;L1,1;L1,4");
    EXPECT_EQ(CellsOf(project, 2), (std::pair{CellAt(9, 3, 50), CellAt(9, 6, 50)}));
    boxes.Expect(kLeaveProject);
    Walk("Nuovo # enabled Annulla #");
    EXPECT_EQ(std::pair(bar.value(), LinesDrawn()), std::pair(1, 0));
}

TEST_F(DrawingWindow, AComponentIsHintedAndShowsWithoutItsIcon) {
    Do("L8,5;L2,5;Command3");
    EXPECT_EQ(mdi->findChild<QLabel*>("Label2")->text(), "insert selected component");
    const ScreenPoint centre = CellCentre(project, CellAt(5, 5, 50));
    const QRect arrow(View().mapFromScene(QPointF(centre.x - 80, centre.y - 50)), QSize(1, 1));
    const auto pixel = [&] { return View().grab(arrow).toImage().pixel(0, 0); };
    const QRgb before = pixel();
    Do("L5,5");
    EXPECT_NE(pixel(), before);
    EXPECT_EQ(Item("Annulla").text(), "&Undo insert pump");
    Do("Annulla");
    EXPECT_EQ(pixel(), before);
    Walk("Tabella # enabled Annulla #");
}

TEST_F(DrawingWindow, ZoomedItStillTakesClicksAndShowsWhatIsSelected) {
    Draw(2, 5, 8, 5);
    const QTransform whole = View().transform();
    Choose("ZoomIn");
    Choose("ZoomIn");
    const QPoint at = PlaceOf(25, 25);
    QWheelEvent wheel(at, View().viewport()->mapToGlobal(at), {}, {0, 240}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(View().viewport(), &wheel);
    EXPECT_NEAR(View().transform().m11() / whole.m11(), std::pow(1.25, 4), 0.02);
    EXPECT_LE((PlaceOf(25, 25) - at).manhattanLength(), 3);
    Draw(24, 25, 27, 25);
    EXPECT_EQ(CellsOf(project, 2), (std::pair{CellAt(24, 25, 50), CellAt(27, 25, 50)}));
    const auto seen = [&](int column, int row) {
        return View().viewport()->rect().contains(PlaceOf(column, row));
    };
    EXPECT_FALSE(seen(5, 5));
    ASSERT_TRUE(FindElement(project, program->editor, "1"));
    program->changed();
    EXPECT_TRUE(seen(2, 5) || seen(8, 5));
    Choose("ZoomFit");
    EXPECT_EQ(View().transform(), whole);
    EXPECT_TRUE(seen(1, 1) && seen(50, 50));
}

TEST_F(DrawingWindow, TheMenuViewChoosesLabelsAndColours) {
    Walk(R"(
        L2,5;L8,5;Command4 # LabelsPressures Legend? # 1|0
        LabelsNumbers;R20,20 # LabelsNumbers LabelsNone # 1|0 # only pressures go with a click
        Command4 # LabelsNumbers LabelsNone # 0|1
        ColoursFlows # ColoursFlows ColoursNone Legend? # 1|0|1)");
    EXPECT_TRUE(Shown("Legend").contains("Flow rate, kg/h: not computed yet"));
}

}  // namespace
}  // namespace idrova
