// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frm_table.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QTableView>
#include <random>

#include "main_window.h"
#include "table/table_columns.h"

namespace idrova {
namespace {

using namespace table_column;

class TableWindow : public MainWindow {
  protected:
    TableWindow() { Choose("Tabella"); }

    QTableView& View() { return Child<QTableView>("TxtTab", Window("FrmTable")); }
    QModelIndex Cell(int row, int column) { return View().model()->index(row - 2, column); }
    QString Text(int row, int column) { return Cell(row, column).data().toString(); }

    void Keys(const QString& keys) {
        for (const QChar key : keys) {
            auto* editor = View().viewport()->findChild<QWidget*>();
            const bool editing = editor != nullptr && editor->isVisible();
            QWidget* focus = editing ? editor : &View();
            const char text = key.toLatin1();
            if (text == '\t') {
                QTest::keyClick(focus, Qt::Key_Tab);
            } else if (text == '\n') {
                QTest::keyClick(focus, Qt::Key_Return);
            } else {
                QTest::keyClick(focus, text);
            }
            QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
    }

    void Select(int row, int column, int lastRow, int lastColumn) {
        View().setCurrentIndex(Cell(row, column));
        View().selectionModel()->select({Cell(row, column), Cell(lastRow, lastColumn)},
                                        QItemSelectionModel::ClearAndSelect);
    }
    void Press(const char* caption) {
        for (QAction* action : View().actions()) {
            if (action->text() == caption) return action->trigger();
        }
        FAIL() << caption;
    }
};

TEST_F(TableWindow, IsASoundModelOfTheRows) {
    const QAbstractItemModelTester sound(View().model(),
                                         QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(View().model()->rowCount(), 99);
    EXPECT_EQ(View().model()->columnCount(), 11);
    EXPECT_EQ(Text(100, kNumber), "100");
    EXPECT_FALSE(Cell(5, kNumber).flags() & Qt::ItemIsEditable);
    EXPECT_EQ(Cell(5, kFlowRate).data(Qt::BackgroundRole).value<QColor>(), QColor(0xFF8080));
    View().model()->setData(Cell(5, kFlowRate), "0");
    EXPECT_FALSE(Cell(5, kFlowRate).data(Qt::BackgroundRole).isValid());
}

TEST_F(TableWindow, IsTypedWithTabAndEnter) {
    View().setCurrentIndex(Cell(2, kStartPoint));
    Keys("1\t3\t2\t");
    EXPECT_EQ(View().currentIndex(), Cell(2, kEndPressure));
    Keys("1.5\n");
    EXPECT_EQ(View().currentIndex(), Cell(3, kEndPressure));
    View().setCurrentIndex(Cell(3, kStartPoint));
    Keys("2\n");
    const TableRowRec& row = program->project.TableRows[3];
    EXPECT_EQ(row.StartPoint, 2);
    EXPECT_EQ(row.StartPressure, 151987.5F) << "as row 2 has it";
    View().setCurrentIndex(Cell(2, kZ2));
    Keys("\t");
    EXPECT_EQ(View().currentIndex(), Cell(3, kStartPoint));
}

TEST_F(TableWindow, NominalSizeIsChosenFromAListOverTheCell) {
    View().edit(Cell(4, kNominalSize));
    auto& list = Child<QComboBox>("Combo1", &View());
    EXPECT_EQ(list.geometry(), View().visualRect(Cell(4, kNominalSize)));
    list.setCurrentIndex(5);
    Q_EMIT list.activated(5);
    EXPECT_EQ(Text(4, kNominalSize), "1 1/2\"");
    EXPECT_EQ(program->project.TableRows[4].RowDiameter, .0425F);
}

TEST_F(TableWindow, WhatIsBeingTypedCountsForEveryCommand) {
    View().setCurrentIndex(Cell(2, kLength));
    Keys("12");
    Choose("p_mbar");
    EXPECT_EQ(program->project.TableRows[2].RowLength, 12);
}

TEST_F(TableWindow, BlocksAreCopiedDeletedAndPastedAndAllIsUndone) {
    const TableTexts empty = program->table;
    const std::vector<std::pair<int, const char*>> row{{kStartPoint, "1"}, {kStartPressure, "3"},
                                                       {kEndPoint, "2"},   {kLength, "10"},
                                                       {kFlowRate, "0"},   {kZ1, "-2"}};
    for (const auto& [column, text] : row) View().model()->setData(Cell(2, column), text);
    View().model()->setData(Cell(3, kEndPoint), "1");
    View().model()->setData(Cell(3, kNominalSize), "1 1/2\"");
    const TableTexts typed = program->table;
    const auto rows = program->project.TableRows;

    Select(2, kNumber, 3, kZ2);
    Press("&Copy");
    Press("&Delete");
    EXPECT_EQ(program->table, empty);
    Press("&Paste");
    EXPECT_EQ(program->table, typed);
    EXPECT_EQ(program->project.TableRows, rows);

    QApplication::clipboard()->setText("7\t\t8\t2\r\n8\t\t9\t\t\"2 1/2\"\"\"\r\n");
    Select(99, kStartPoint, 99, kStartPoint);
    Press("&Paste");
    EXPECT_EQ(Text(100, kStartPressure), "2") << "given once for point 8";
    EXPECT_EQ(Text(100, kNominalSize), "2 1/2\"");

    for (int edits = 0; edits < 20; ++edits) Press("&Undo");
    EXPECT_EQ(program->table, empty);
    EXPECT_EQ(program->project.TableRows[2], TableRowRec());
    for (int edits = 0; edits < 20; ++edits) Press("&Redo");
    EXPECT_EQ(Text(99, kEndPressure), "2");
}

TEST_F(TableWindow, AnotherTableCanNotBeUndoneIntoTheOldOne) {
    View().model()->setData(Cell(2, kStartPressure), "2");
    Choose("p_mbar");
    EXPECT_EQ(Text(2, kStartPressure), "2000");
    Press("&Undo");
    EXPECT_EQ(Text(2, kStartPressure), "2000");
}

TEST_F(TableWindow, SwitchingModesAtRandomLosesNothing) {
    Project& project = program->project;
    View().model()->setData(Cell(2, kStartPoint), "1");
    View().model()->setData(Cell(2, kNominalSize), "2\"");
    project.Pipes[1].Length = 5;
    project.numtubo = 1;
    const auto before = std::make_unique<Project>(project);
    const TableTexts texts = program->table;
    struct Mode {
        const char *item, *window;
    };
    const std::vector<Mode> modes{
        {"Grafico", "FrmCel"}, {"Tabella", "FrmTable"}, {"sintub", "FrmSin"}};
    std::mt19937 random(7);
    for (int step = 0; step < 60; ++step) {
        const Mode& entered = modes[random() % modes.size()];
        Choose(entered.item);
        for (const Mode& mode : modes) {
            const bool isEntered = &mode == &entered;
            EXPECT_EQ(Window(mode.window) != nullptr, isEntered);
            EXPECT_EQ(Item(mode.item).isChecked(), isEntered);
        }
        EXPECT_EQ(program->shell.HintsShown, std::string(entered.window) == "FrmCel");
        ASSERT_EQ(program->table, texts);
        before->Mode = project.Mode;
        ASSERT_TRUE(project == *before);
    }
}

}  // namespace
}  // namespace idrova
