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
    void SetUp() override { Do("Tabella>FrmTable"); }

    /// "5.2=1.5" puts a text into row 5, column 2, "5.2" and "5.2-6.4" select cells, "Fill down"
    /// runs this command of the table.
    void Take(const QString& step) override {
        static const QRegularExpression form(R"(^(\d+)\.(\d+)(?:-(\d+)\.(\d+))?(=.*)?$)");
        if (Window("FrmTable") == nullptr) return MainWindow::Take(step);
        for (QAction* action : View().actions()) {
            if (action->text().remove('&') == step) return action->trigger();
        }
        const QRegularExpressionMatch part = form.match(step);
        const auto n = [&part](int group) { return part.captured(group).toInt(); };
        if (!part.hasMatch()) return MainWindow::Take(step);
        const QModelIndex cell = Cell(n(1), n(2));
        const QString text = part.captured(5).mid(1);
        if (step.contains('=')) return void(View().model()->setData(cell, text));
        View().setCurrentIndex(cell);
        View().selectionModel()->select({cell, n(3) == 0 ? cell : Cell(n(3), n(4))},
                                        QItemSelectionModel::ClearAndSelect);
    }

    /// Of "5.2" the text in row 5, column 2; of "cursor" where it stands.
    QString TextOf(const QString& name) override {
        static const QRegularExpression form(R"(^(\d+)\.(\d+)$)");
        const QRegularExpressionMatch part = form.match(name);
        const QModelIndex at = View().currentIndex();
        if (name == "cursor") return QString("%1.%2").arg(at.row() + 2).arg(at.column());
        if (!part.hasMatch()) return MainWindow::TextOf(name);
        return Cell(part.captured(1).toInt(), part.captured(2).toInt()).data().toString();
    }

    QTableView& View() { return Child<QTableView>("TxtTab"); }
    QModelIndex Cell(int row, int column) { return View().model()->index(row - 2, column); }

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

    void Paste(const QString& cell, const QString& text) {
        QApplication::clipboard()->setText(text);
        Do(cell + ";Paste");
    }

    bool HasGround(int row, int column) {
        return Cell(row, column).data(Qt::BackgroundRole).isValid();
    }
};

TEST_F(TableWindow, IsASoundModelTypedWithTabAndEnter) {
    const QAbstractItemModelTester sound(View().model(),
                                         QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_EQ(View().model()->headerData(98, Qt::Vertical), "99");
    EXPECT_FALSE(Cell(5, kNumber).flags() & Qt::ItemIsEditable);
    EXPECT_FALSE(HasGround(2, kFlowRate));
    Do("2.3=1");
    EXPECT_EQ(Cell(2, kFlowRate).data(Qt::BackgroundRole).value<QColor>(), QColor(0xFF8080));
    Do("2.8=0");
    EXPECT_FALSE(HasGround(2, kFlowRate));

    Keys(2, kStartPoint, "1\t3\t2\t");
    EXPECT_EQ(Shown("cursor"), "2.4");
    Keys(2, kEndPressure, "1.5\n");
    EXPECT_EQ(Shown("cursor"), "3.4");
    Keys(3, kStartPoint, "2\n");
    EXPECT_EQ(project.TableRows[3].StartPressure, 151987.5F) << "as row 2 has it";
    Keys(2, kLossSum, "\t");
    EXPECT_EQ(Shown("cursor"), "3.1");
    Keys(100, kLossSum, "5\t");
    EXPECT_EQ(Shown("cursor"), "100.11") << "there is no cell behind it";
    Keys(2, kEndPressure, "#5\n");
    EXPECT_EQ(Shown("2.4"), "5") << "F2 edits the cell";
    Keys(2, kLength, "1,5");
    Do("p_mbar");
    EXPECT_EQ(project.TableRows[2].RowLength, 1.5F) << "a command takes what is being typed";
    Keys(2, kLength, "12");
    boxes.Expect(kSelectAFluid);
    Do("Command1");
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
    Walk("# 4.5 4.6 # 2\"|53.8 # keys search the list\n 4.5=1 1/2");
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
        if (key == Qt::Key_F3) Do("p_mbar");
        close(list, key);
    }
    Walk("# 4.5 4.6 # 1 1/2\"|42.5\n 4.6=42.50");
    close(open("#"), Qt::Key_Return);
    EXPECT_EQ(Shown("4.6"), "42.5") << "the same size again counts";
}

TEST_F(TableWindow, BlocksAndRowsAreEditedAndAllIsUndone) {
    const TableTexts empty = program->table;
    Paste("2.1", "1\t3\t2\t\t\t\t10\t0\t-2\n\t\t1\t\t\"1 1/2\"\"\"\n");
    EXPECT_EQ(Shown("3.4 3.5"), "3|1 1/2\"");
    const TableTexts typed = program->table;
    const auto rows = project.TableRows;
    Do("2.0-3.10;Copy");
    QTest::keyClick(&View(), Qt::Key_Backspace);
    EXPECT_EQ(program->table, empty);
    Do("Paste");
    EXPECT_EQ(program->table, typed);
    EXPECT_EQ(project.TableRows, rows);
    Paste("99.1", "7\t\t8\t2\r\n8\t\t9\r\n");
    EXPECT_EQ(Shown("100.2"), "2") << "given once for point 8";

    Paste("4.7-6.7", "x");
    Do("6.7-7.7;Fill down");
    EXPECT_TRUE(Cell(7, kLength).data(Qt::UserRole).toBool()) << "with a frame";
    Walk("Cut # 5.7 7.7 # x|");
    EXPECT_EQ(QApplication::clipboard()->text(), "x\nx\n");
    const MessageBox question = PartLeftOut({3, 1, 2, 0});
    boxes.Expect(question, Answer::No).Expect(question, Answer::Yes).Expect(kNoRoomForRows);
    Paste("100.7", "1\n2\n3\n");
    Walk(R"(# 100.7 #
            Paste # 100.7 # 1
            Insert rows)");

    EXPECT_EQ(Item("Annulla").text(), "&Undo paste");
    for (int i = 0; i < 20; ++i) Do("Annulla");
    EXPECT_EQ(Enabled("Annulla"), "");
    EXPECT_EQ(program->table, empty);
    EXPECT_EQ(project.TableRows[2], TableRowRec());
    Walk(R"(Redo;Redo;Redo;Ripeti # 99.4 # 2
            p_mbar;Undo # 99.4 # 2000 # the table of another unit is another table
            2.7=11)");
    program->changed();
    Walk("Undo # 2.7 # 10 # and that is forgotten once only");
}

TEST_F(TableWindow, RowsBelowAGapAreShadedNamedAndMovedUp) {
    Paste("2.1", "1\t\t2\n2\t\t3\n3\t\t4\n");
    EXPECT_FALSE(HasGround(4, kLength));
    Walk(R"(
        # GapBar? # 0
        3.1;Insert rows # GapBar? # 1
        # LabelGap # Rows 3, 4 stand below the empty row 2: they are not computed)");
    EXPECT_TRUE(HasGround(4, kLength) && !HasGround(3, kLength));
    Walk(R"(CommandCloseUp # GapBar? 3.1 4.1 # 0|2|3
            Delete rows # 3.1 # 3)");
}

TEST_F(TableWindow, ResultsStandBesideTheirRowsGreyWhenOutOfDate) {
    const int flow = kTableColumns;
    const auto grey = [&] { return Cell(2, flow).data(Qt::ForegroundRole).isValid(); };
    project.settings.FluidDensity = 1000;
    project.settings.FluidViscosity = .001;
    EXPECT_TRUE(View().isColumnHidden(flow));
    Paste("2.1", "1\t3\t2\t2\t2\t\t10");
    Do("Command1");
    EXPECT_FALSE(View().isColumnHidden(flow) || grey());
    EXPECT_FALSE(Cell(2, flow).flags() & Qt::ItemIsEditable);
    const double litres = Shown("2.12").toDouble() / 3600;
    EXPECT_NEAR(Shown("2.13").toDouble(), litres / 1000 / (.0538 * .0538 * .785398), .001);
    Walk(R"(# 2.14 2.15 2.16 # 10132.50|3.0000|2.0000
            2.7=20 # 2.15 # 3.0000
            p_mbar # 2.15 2.16 # 3000.0|2000.0)");
    EXPECT_TRUE(grey());
    Walk("2.3=3 # 2.12 # # it is another pipe");
    Keys(2, flow, "\t");
    EXPECT_EQ(Shown("cursor"), "3.1");
}

TEST_F(TableWindow, TableItsEditsAndItsPlaceStayUntilAFileIsOpened) {
    mdi->resize(700, 500);
    QApplication::processEvents();
    auto& across = Child<QAbstractSlider>("ScrX");
    Do("2.1=1;2.5=2\";60.7;ScrX#2;ScrY#40");
    EXPECT_EQ(View().indexAt({0, 0}), Cell(42, kEndPoint)) << "by whole columns";
    for (const int value : {across.maximum(), 2}) {
        across.setValue(value);
        EXPECT_EQ(View().columnViewportPosition(value + 1), 0);
    }
    Do("Grafico;Tabella>FrmTable");
    QApplication::processEvents();
    EXPECT_EQ(Shown("cursor"), "60.7");
    EXPECT_EQ(View().indexAt({0, 0}), Cell(42, kEndPoint));

    for (const char* mode : {"Grafico", "Tabella"}) {
        boxes.Expect(kLeaveProject);
        Do(mode);
        Do("Nuovo");
        EXPECT_EQ(program->table.At(2, kNominalSize), "2\"");
    }
    Walk("Tabella>FrmTable;Undo # 2.1 2.5 # 1|");

    ASSERT_TRUE(WriteProject(project, folder / "table.iv"));
    PutFile(folder / "bad.iv", "2.6.3\r\n");
    for (const QString mode : {"Grafico", "Tabella"}) {
        Do("2.5=4\";2.5=3\";" + mode);
        boxes.Expect(ProjectMalformed("line 2: the line is missing"));
        OpenFile(*mdi, folder / "bad.iv");
        EXPECT_EQ(program->table.At(2, kNominalSize), "3\"");
        OpenFile(*mdi, folder / "table.iv");
        Walk("Tabella>FrmTable;Undo # 2.1 2.5 # 1|");
    }
}

TEST_F(TableWindow, SwitchingModesLosesNothing) {
    Do("2.5=2\"");
    project.Pipes[1].Length = 5;
    project.numtubo = 1;
    const auto before = std::make_unique<Project>(project);
    const TableTexts texts = program->table;
    Walk(R"(
        sintub # FrmCel? FrmTable? FrmSin? StatusMode Helpslinea # 0|0|1|Mode: Single pipe|0
        Grafico # FrmCel? FrmTable? FrmSin? StatusMode Helpslinea # 1|0|0|Mode: Graphic|1
        Tabella # FrmCel? FrmTable? FrmSin? StatusMode Helpslinea # 0|1|0|Mode: Table|0
        Grafico # FrmCel? FrmTable? FrmSin? StatusMode Helpslinea # 1|0|0|Mode: Graphic|1
        sintub # FrmCel? FrmTable? FrmSin? StatusMode Helpslinea # 0|0|1|Mode: Single pipe|0
        Tabella # FrmCel? FrmTable? FrmSin? StatusMode Helpslinea # 0|1|0|Mode: Table|0)");
    EXPECT_EQ(program->table, texts);
    before->settings.Mode = WorkMode::Table;
    EXPECT_TRUE(project == *before);
}

}  // namespace
}  // namespace idrova
