// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/table/frm_table.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QTableView>
#include <string_view>

#include "hydraulics/messages.h"
#include "main_window.h"
#include "projectfile/messages.h"
#include "projectfile/project_file.h"
#include "table/messages.h"
#include "table/table_columns.h"

namespace idrova {
namespace {

using namespace table_column;

class TableWindow : public MainWindow {
  protected:
    TableWindow() { Open("Tabella", "FrmTable"); }

    QTableView& View() { return Child<QTableView>("TxtTab"); }
    QModelIndex Cell(int row, int column) { return View().model()->index(row - 2, column); }
    QString Text(int row, int column) { return Cell(row, column).data().toString(); }
    void Put(int row, int column, const char* text) {
        View().model()->setData(Cell(row, column), text);
    }

    /// Presses keys from a cell on; '#' is F2.
    void Keys(int row, int column, const char* keys) {
        View().setCurrentIndex(Cell(row, column));
        for (const char key : std::string_view(keys)) {
            auto* editor = View().viewport()->findChild<QWidget*>();
            QWidget* focus = editor != nullptr && editor->isVisible() ? editor : &View();
            if (key == '#') QTest::keyClick(focus, Qt::Key_F2);
            if (key == '\n') QTest::keyClick(focus, Qt::Key_Return);
            if (key != '#' && key != '\n') QTest::keyClick(focus, key);
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    /// Selects cells and chooses a command of the table, with this text on the clipboard.
    void On(int row, int column, int lastRow, int lastColumn, const char* caption,
            const QString& clipboard = {}) {
        if (!clipboard.isEmpty()) QApplication::clipboard()->setText(clipboard);
        View().setCurrentIndex(Cell(row, column));
        View().selectionModel()->select({Cell(row, column), Cell(lastRow, lastColumn)},
                                        QItemSelectionModel::ClearAndSelect);
        Press(caption);
    }
    void Press(const char* caption, int times = 1) {
        for (QAction* action : View().actions()) {
            for (int i = 0; action->text() == caption && i < times; ++i) action->trigger();
        }
    }
};

TEST_F(TableWindow, IsASoundModelTypedWithTabAndEnter) {
    const QAbstractItemModelTester sound(View().model(),
                                         QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(View().model()->headerData(98, Qt::Vertical), "99");
    EXPECT_FALSE(Cell(5, kNumber).flags() & Qt::ItemIsEditable);
    EXPECT_FALSE(Cell(2, kFlowRate).data(Qt::BackgroundRole).isValid());
    Put(2, kEndPoint, "1");
    EXPECT_EQ(Cell(2, kFlowRate).data(Qt::BackgroundRole).value<QColor>(), QColor(0xFF8080));
    Put(2, kFlowRate, "0");
    EXPECT_FALSE(Cell(2, kFlowRate).data(Qt::BackgroundRole).isValid());

    Keys(2, kStartPoint, "1\t3\t2\t");
    EXPECT_EQ(View().currentIndex(), Cell(2, kEndPressure));
    Keys(2, kEndPressure, "1.5\n");
    EXPECT_EQ(View().currentIndex(), Cell(3, kEndPressure));
    Keys(3, kStartPoint, "2\n");
    EXPECT_EQ(project.TableRows[3].StartPressure, 151987.5F) << "as row 2 has it";
    Keys(2, kLossSum, "\t");
    EXPECT_EQ(View().currentIndex(), Cell(3, kStartPoint));
    Keys(2, kEndPressure, "#5\n");
    EXPECT_EQ(Text(2, kEndPressure), "5") << "F2 edits the cell";
    Keys(2, kLength, "1,5");
    Choose("p_mbar");
    EXPECT_EQ(project.TableRows[2].RowLength, 1.5F) << "a command takes what is being typed";
    Keys(2, kLength, "12");
    boxes.Expect(kSelectAFluid);
    Child<QAbstractButton>("Command1").click();
    EXPECT_EQ(project.TableRows[2].RowLength, 12) << "and so does the computation";
    EXPECT_EQ(View().model()->headerData(kEndPressure, Qt::Horizontal), "P2 [mbar]");
}

TEST_F(TableWindow, OnlyAChoiceFromTheOpenListOverTheCellSetsTheSize) {
    const auto open = [this](const char* keys) -> QComboBox& {
        Keys(4, kNominalSize, keys);
        QApplication::processEvents();
        auto& list = Child<QComboBox>("Combo1");
        EXPECT_TRUE(list.view()->isVisible());
        EXPECT_EQ(list.geometry(), View().visualRect(Cell(4, kNominalSize)));
        return list;
    };
    const auto close = [this](QComboBox& list, Qt::Key key) {
        QWidget* opened = list.view();
        QTest::keyClick(opened->isVisible() ? opened : &list, key);
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(View().findChild<QComboBox*>(), nullptr) << "no closed list is left";
    };
    close(open("2"), Qt::Key_Return);
    EXPECT_EQ(Text(4, kNominalSize) + Text(4, kDiameter), "2\"53.8") << "keys search the list";
    Put(4, kNominalSize, "1 1/2");
    for (const char* keys : {"25", "6", "#"}) {
        QComboBox& list = open(keys);
        EXPECT_EQ(list.currentIndex(), 5) << "nothing is chosen, with or without the inch mark";
        close(list, Qt::Key_Escape);
    }
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Tab, Qt::Key_Down, Qt::Key_F3}) {
        QComboBox& list = open("#");
        list.hidePopup();
        QWheelEvent turned(QPointF(3, 3), {}, {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&list, &turned);
        if (key == Qt::Key_F3) Choose("p_mbar");
        close(list, key);
    }
    EXPECT_EQ(Text(4, kNominalSize) + Text(4, kDiameter), "1 1/2\"42.5");
    Put(4, kDiameter, "42.50");
    close(open("#"), Qt::Key_Return);
    EXPECT_EQ(Text(4, kDiameter), "42.5") << "the same size again counts";
}

TEST_F(TableWindow, BlocksAndRowsAreEditedAndAllIsUndone) {
    const TableTexts empty = program->table;
    const QString block = "1\t3\t2\t\t\t\t10\t0\t-2\n\t\t1\t\t\"1 1/2\"\"\"\n";
    On(2, kStartPoint, 2, kStartPoint, "&Paste", block);
    EXPECT_EQ(Text(3, kEndPressure) + Text(3, kNominalSize), "31 1/2\"");
    const TableTexts typed = program->table;
    const auto rows = project.TableRows;
    On(2, kNumber, 3, kZ2, "&Copy");
    QTest::keyClick(&View(), Qt::Key_Backspace);
    EXPECT_EQ(program->table, empty);
    Press("&Paste");
    EXPECT_EQ(program->table, typed);
    EXPECT_EQ(project.TableRows, rows);
    On(99, kStartPoint, 99, kStartPoint, "&Paste", "7\t\t8\t2\r\n8\t\t9\r\n");
    EXPECT_EQ(Text(100, kStartPressure), "2") << "given once for point 8";

    On(4, kLength, 6, kLength, "&Paste", "x");
    On(6, kLength, 7, kLength, "Fill d&own");
    EXPECT_TRUE(Cell(7, kLength).data(Qt::UserRole).toBool()) << "with a frame";
    Press("Cu&t");
    EXPECT_EQ(Text(5, kLength) + Text(7, kLength) + QApplication::clipboard()->text(), "xx\nx\n");
    const MessageBox question = PartLeftOut({3, 1, 2, 0});
    boxes.Expect(question, Answer::No).Expect(question, Answer::Yes).Expect(kNoRoomForRows);
    On(100, kLength, 100, kLength, "&Paste", "1\n2\n3\n");
    EXPECT_EQ(Text(100, kLength), "");
    Press("&Paste");
    EXPECT_EQ(Text(100, kLength), "1");
    Press("&Insert rows");

    EXPECT_EQ(Item("Annulla").text(), "&Undo paste");
    for (int i = 0; i < 20; ++i) Choose("Annulla");
    EXPECT_FALSE(Item("Annulla").isEnabled());
    EXPECT_EQ(program->table, empty);
    EXPECT_EQ(project.TableRows[2], TableRowRec());
    Press("&Redo", 3);
    Choose("Ripeti");
    EXPECT_EQ(Text(99, kEndPressure), "2");
    Choose("p_mbar");
    Press("&Undo");
    EXPECT_EQ(Text(99, kEndPressure), "2000") << "the table of another unit is another table";
    Put(2, kLength, "11");
    program->changed();
    Press("&Undo");
    EXPECT_EQ(Text(2, kLength), "10") << "and that is forgotten once only";
}

TEST_F(TableWindow, RowsBelowAGapAreShadedNamedAndMovedUp) {
    const auto shaded = [this](int row) {
        return Cell(row, kLength).data(Qt::BackgroundRole).isValid();
    };
    auto& bar = Child<QWidget>("GapBar");
    On(2, kStartPoint, 2, kStartPoint, "&Paste", "1\t\t2\n2\t\t3\n3\t\t4\n");
    EXPECT_FALSE(bar.isVisible() || shaded(4));
    On(3, kStartPoint, 3, kStartPoint, "&Insert rows");
    EXPECT_EQ(Shown("LabelGap"), "Rows 3, 4 stand below the empty row 2: they are not computed");
    EXPECT_TRUE(bar.isVisible() && shaded(4) && !shaded(3));
    Do("CommandCloseUp");
    EXPECT_FALSE(bar.isVisible());
    EXPECT_EQ(Text(3, kStartPoint) + Text(4, kStartPoint), "23");
    Press("Delete &rows");
    EXPECT_EQ(Text(3, kStartPoint), "3");
}

TEST_F(TableWindow, ResultsStandBesideTheirRowsGreyWhenOutOfDate) {
    const int flow = kTableColumns;
    const auto grey = [&] { return Cell(2, flow).data(Qt::ForegroundRole).isValid(); };
    project.settings.FluidDensity = 1000;
    project.settings.FluidViscosity = .001;
    EXPECT_TRUE(View().isColumnHidden(flow));
    On(2, kStartPoint, 2, kStartPoint, "&Paste", "1\t3\t2\t2\t2\t\t10");
    Do("Command1");
    EXPECT_FALSE(View().isColumnHidden(flow) || grey());
    EXPECT_FALSE(Cell(2, flow).flags() & Qt::ItemIsEditable);
    const double litres = Text(2, flow).toDouble() / 3600;
    EXPECT_NEAR(Text(2, flow + 1).toDouble(), litres / 1000 / (.0538 * .0538 * .785398), .001);
    EXPECT_EQ(Text(2, flow + 2) + ";" + Text(2, flow + 3) + ";" + Text(2, flow + 4),
              "10132.50;3.0000;2.0000");
    Put(2, kLength, "20");
    EXPECT_TRUE(grey() && Text(2, flow + 3) == "3.0000");
    Put(2, kEndPoint, "3");
    EXPECT_EQ(Text(2, flow), "") << "it is another pipe";
    Keys(2, flow, "\t");
    EXPECT_EQ(View().currentIndex(), Cell(3, kStartPoint));
}

TEST_F(TableWindow, TableItsEditsAndItsPlaceStayUntilAFileIsOpened) {
    mdi->resize(700, 500);
    QApplication::processEvents();
    Put(2, kStartPoint, "1");
    Put(2, kNominalSize, "2\"");
    auto& across = Child<QAbstractSlider>("ScrX");
    auto& down = Child<QAbstractSlider>("ScrY");
    View().setCurrentIndex(Cell(60, kLength));
    across.setValue(2);
    down.setValue(40);
    EXPECT_EQ(View().indexAt({0, 0}), Cell(42, kEndPoint)) << "by whole columns";
    for (const int value : {across.maximum(), 2}) {
        across.setValue(value);
        EXPECT_EQ(View().columnViewportPosition(value + 1), 0);
    }
    Choose("Grafico");
    Open("Tabella", "FrmTable");
    QApplication::processEvents();
    EXPECT_EQ(View().currentIndex(), Cell(60, kLength));
    EXPECT_EQ(View().indexAt({0, 0}), Cell(42, kEndPoint));

    for (const char* mode : {"Grafico", "Tabella"}) {
        Choose(mode);
        boxes.Expect(kLeaveProject);
        Choose("Nuovo");
        EXPECT_EQ(program->table.At(2, kNominalSize), "2\"");
    }
    Open("Tabella", "FrmTable");
    Press("&Undo");
    EXPECT_EQ(Text(2, kStartPoint) + Text(2, kNominalSize), "1");

    ASSERT_TRUE(WriteProject(project, folder / "table.iv"));
    PutFile(folder / "bad.iv", "2.6.3\r\n");
    for (const char* mode : {"Grafico", "Tabella"}) {
        Put(2, kNominalSize, "4\"");
        Put(2, kNominalSize, "3\"");
        Choose(mode);
        boxes.Expect(ProjectMalformed("line 2: the line is missing"));
        OpenFile(*mdi, folder / "bad.iv");
        EXPECT_EQ(program->table.At(2, kNominalSize), "3\"");
        OpenFile(*mdi, folder / "table.iv");
        Open("Tabella", "FrmTable");
        Press("&Undo");
        EXPECT_EQ(Text(2, kStartPoint) + Text(2, kNominalSize), "1") << mode;
    }
}

TEST_F(TableWindow, SwitchingModesLosesNothing) {
    Put(2, kNominalSize, "2\"");
    project.Pipes[1].Length = 5;
    project.numtubo = 1;
    const auto before = std::make_unique<Project>(project);
    const TableTexts texts = program->table;
    for (const QString mode :
         {"sintub FrmSin Single", "Grafico FrmCel Graphic", "Tabella FrmTable Table",
          "Grafico FrmCel Graphic", "sintub FrmSin Single", "Tabella FrmTable Table"}) {
        const QStringList words = mode.split(' ');
        Choose(words[0].toLatin1());
        for (const char* name : {"FrmCel", "FrmTable", "FrmSin"}) {
            EXPECT_EQ(Window(name) != nullptr, words[1] == name);
        }
        EXPECT_TRUE(Shown("StatusMode").startsWith("Mode: " + words[2]));
        EXPECT_EQ(program->shell.HintsShown, words[2] == "Graphic");
        ASSERT_EQ(program->table, texts);
        before->settings.Mode = project.settings.Mode;
        ASSERT_TRUE(project == *before);
    }
}

}  // namespace
}  // namespace idrova
