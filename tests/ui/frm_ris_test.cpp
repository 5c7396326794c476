// SPDX-License-Identifier: GPL-3.0-or-later
#include <QClipboard>
#include <QImage>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>

#include "drawing_window.h"
#include "results/messages.h"
#include "support/markup_check.h"
#include "ui/frame/messages.h"
#include "ui/kit/qt_text.h"

namespace idrova {
namespace {

/// Water from 3 bar through two pipes to 1 bar, computed and shown.
class ResultsWindow : public DrawingWindow {
  protected:
    void SetUp() override {
        project.settings.FluidDensity = 1000;
        project.settings.FluidViscosity = .001;
        Do("L2,5;L8,5;L8,5;L14,5;R5,5;Text6=100;Text7=50;Option1_1;Text10=3");
        Do("R11,5;Text6=50;Text7=60;Option2_1;Text9=1;Command1;TabRisultati>FrmRis");
    }

    QString Selected(const char* name) {
        const auto rows = Child<QTableView>(name).selectionModel()->selectedRows();
        QString numbers;
        for (const auto& row : rows) numbers += row.data().toString();
        return numbers;
    }
};

TEST_F(ResultsWindow, TablesAreSortedFilteredCopiedAndSelectWhatTheDrawingSelects) {
    Walk("# Pipes* Points* Components* # 1 2|1 2 3|");
    EXPECT_EQ(Selected("Pipes") + Selected("Points"), "22");
    Do("R5,5");
    EXPECT_EQ(Selected("Pipes") + Selected("Points"), "12") << "its other end, selected already";
    auto& pipes = Child<QTableView>("Pipes");
    pipes.sortByColumn(6, Qt::AscendingOrder);  // the wider pipe is the slower one
    EXPECT_EQ(Shown("Pipes*") + Selected("Pipes"), "2 11");
    pipes.selectRow(0);
    EXPECT_EQ(project.CurrentPipe, 2);
    pipes.selectAll();
    EXPECT_EQ(mdi->findChild<QGroupBox*>("Frame3")->title(), "2 pipes");
    Do("R5,5");
    EXPECT_EQ(Selected("Pipes"), "1");
    Do("C11,5");
    EXPECT_EQ(Selected("Pipes").size(), 2);
    Do("R11,5");
    EXPECT_EQ(Selected("Pipes"), "2");
    Child<QTabWidget>("ResultTabs").setCurrentIndex(1);
    Child<QTableView>("Points").selectRow(0);
    EXPECT_EQ(Selected("Pipes"), "1") << "the pipe of point 1";
    Child<QTableView>("Points").selectRow(2);
    Do("R5,5");
    EXPECT_EQ(Selected("Points"), "1") << "where the selected pipe starts";
    Walk("Pipes!Ctrl+C;Filter=given # Pipes* Points* # |1 3");
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("1\t1\t2\t"));
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
    Walk("Risultati>FrmRis;sintub # ResultState Pipes* # Not computed yet|");
}

TEST_F(ResultsWindow, TheyAreWrittenInEveryFormButNotOnceThePlantHasChanged) {
    const auto write = [this](const char* name) {
        QTimer::singleShot(0, [this, name] {
            auto* field = QApplication::activeModalWidget()->findChild<QLineEdit*>("fileNameEdit");
            field->setText(PathToQt(folder / name));
            QTest::keyClick(field, Qt::Key_Return);
        });
        Choose("Esporta");
        return FileBytes(folder / name);
    };
    write("report");  // what is offered first is HTML
    const std::string page = FileBytes(folder / "report.html");
    EXPECT_TRUE(page.starts_with("<!DOCTYPE html>"));
    EXPECT_EQ(MarkupFault(page), "");
    const std::string paper = write("r.PDF");
    EXPECT_TRUE(paper.starts_with("%PDF-"));
    EXPECT_NE(paper.find("/Count 2"), std::string::npos) << "a sheet of its own for the drawing";
    EXPECT_TRUE(write("plant.svg").starts_with("<svg"));
    QImage picture;
    EXPECT_TRUE(picture.loadFromData(QByteArray::fromStdString(write("plant.png"))));
    QImage empty = picture;
    empty.fill(Qt::white);
    EXPECT_NE(picture, empty);
    EXPECT_TRUE(write("plant.inp").starts_with("[TITLE]"));
    EXPECT_EQ(write("plant.csv"), "");
    EXPECT_TRUE(FileBytes(folder / "plant-points.csv").starts_with("point,"));

    const std::string names = "plant-pipes.csv, plant-points.csv, plant-components.csv";
    PutFile(folder / "plant-pipes.csv", "mine");
    boxes.Expect(OverwriteExported(names), Answer::No);
    write("plant.csv");
    EXPECT_EQ(FileBytes(folder / "plant-pipes.csv"), "mine");
    project.Pipes[1].Length = 200;
    boxes.Expect({std::string(kOldResultsToExport), kExportTitle});
    write("late.html");
    EXPECT_FALSE(std::filesystem::exists(folder / "late.html"));
}

}  // namespace
}  // namespace idrova
