// SPDX-License-Identifier: GPL-3.0-or-later
#include <QClipboard>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableView>

#include "drawing_window.h"
#include "results/messages.h"

namespace idrova {
namespace {

/// Water from 3 bar through two pipes to 1 bar, computed and shown.
class ResultsWindow : public DrawingWindow {
  protected:
    ResultsWindow() {
        project.settings.FluidDensity = 1000;
        project.settings.FluidViscosity = .001;
        Draw(2, 5, 8, 5);
        Draw(8, 5, 14, 5);
        Select(5, 5);
        Do("Text6=100;Text7=50;Option1_1;Text10=3");
        Select(11, 5);
        Do("Text6=50;Text7=60;Option2_1;Text9=1;Command1");
        Open("TabRisultati", "FrmRis");
    }

    /// First cells of the shown rows, "1 2".
    QString Rows(const char* name) {
        QStringList rows;
        const QAbstractItemModel& model = *Child<QTableView>(name).model();
        for (int i = 0; i < model.rowCount(); ++i) rows += model.index(i, 0).data().toString();
        return rows.join(' ');
    }

    QString Selected(const char* name) {
        const auto rows = Child<QTableView>(name).selectionModel()->selectedRows();
        return rows.isEmpty() ? QString() : rows.front().data().toString();
    }
};

TEST_F(ResultsWindow, TablesAreSortedFilteredCopiedAndSelectWhatTheDrawingSelects) {
    EXPECT_EQ(Rows("Pipes") + '|' + Rows("Points") + '|' + Rows("Components"), "1 2|1 2 3|");
    EXPECT_EQ(Selected("Pipes") + Selected("Points"), "22");
    Select(5, 5);
    EXPECT_EQ(Selected("Pipes") + Selected("Points"), "12") << "its other end, selected already";
    auto& pipes = Child<QTableView>("Pipes");
    pipes.sortByColumn(6, Qt::AscendingOrder);  // the wider pipe is the slower one
    EXPECT_EQ(Rows("Pipes") + Selected("Pipes"), "2 11");
    pipes.selectRow(0);
    EXPECT_EQ(project.CurrentPipe, 2);
    Child<QTabWidget>("ResultTabs").setCurrentIndex(1);
    Child<QTableView>("Points").selectRow(0);
    EXPECT_EQ(Selected("Pipes"), "1") << "the pipe of point 1";
    QTest::keyClick(&pipes, Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("1\t1\t2\t"));
    Do("Filter=given");
    EXPECT_EQ(Rows("Pipes") + '|' + Rows("Points"), "|1 3");
    EXPECT_TRUE(Child<QPlainTextEdit>("Report").toPlainText().contains("RESULTS CALCULATION"));
}

TEST_F(ResultsWindow, AChangeGreysThemAndWithoutAnEditorTheyOpenInItsPlace) {
    const auto colour = [this] {
        return Child<QTableView>("Pipes").model()->index(0, 3).data(Qt::ForegroundRole);
    };
    EXPECT_FALSE(colour().isValid());
    project.Pipes[1].Length = 200;
    program->changed();
    EXPECT_TRUE(colour().isValid());
    EXPECT_EQ(Shown("ResultState"), "Changed since the computation");
    QTest::keyClick(window, Qt::Key_Escape);
    boxes.Expect(kConfigureEditor);
    Open("Risultati", "FrmRis");
    Choose("sintub");
    EXPECT_EQ(Shown("ResultState") + Rows("Pipes"), "Not computed yet");
}

}  // namespace
}  // namespace idrova
