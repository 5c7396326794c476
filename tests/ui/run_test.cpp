// SPDX-License-Identifier: GPL-3.0-or-later
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>
#include <vector>

#include "editor/cell_click.h"
#include "hydraulics/messages.h"
#include "main_window.h"
#include "model/grid.h"
#include "results/messages.h"
#include "table/messages.h"
#include "table/table_edit.h"
#include "ui/frm_ava.h"
#include "ui/frm_com.h"

namespace idrova {
namespace {

class Run : public MainWindow {
  protected:
    /// One pipe of water between two given pressures.
    void DrawPipe() {
        Project& project = program->project;
        for (const int column : {5, 15}) {
            CellClick(project, program->editor, CellAt(column, 5, project.GridSize),
                      MouseButton::Left, boxes);
        }
        project.Pipes[1].Length = 100;
        project.Pipes[1].Diameter = 0.05F;
        for (const int point : {1, 2}) {
            project.PressureUnknown[static_cast<std::size_t>(point)] = false;
            project.Points[static_cast<std::size_t>(point)].Pressure = point == 1 ? 3e5F : 2e5F;
        }
    }

    void ChooseWater() {
        program->project.FluidName = "water";
        program->project.FluidDensity = 998.2;
        program->project.FluidViscosity = 0.001002;
        program->showSettings();
    }

    void Calculate() { Child<QPushButton>("Command1", &mdi->Panel()).click(); }

    QToolButton& OutcomeButton() { return Child<QToolButton>("StatusOutcome"); }
};

TEST_F(Run, ComputesTheDrawingAndWritesTheReport) {
    DrawPipe();
    ChooseWater();
    Calculate();
    EXPECT_GT(program->project.Pipes[1].FlowRate, 1);
    EXPECT_NE(FileBytes(folder / "out.dat").find("RESULTS CALCULATION"), std::string::npos);
    EXPECT_TRUE(OutcomeButton().text().startsWith("Computed in "))
        << OutcomeButton().text().toStdString();
    EXPECT_EQ(OutcomeButton().styleSheet(), "");
    EXPECT_EQ(mdi->findChild<QWidget*>("FrmAva"), nullptr);
    EXPECT_EQ(Child<QLabel>("StatusFluid").text(), "Fluid: water");
}

TEST_F(Run, KeepsReportsInSequenceWhileTheItemIsChecked) {
    DrawPipe();
    ChooseWater();
    const auto reports = [&] {
        const std::string text = FileBytes(folder / "out.dat");
        int count = 0;
        for (auto at = text.find("RESULTS CALC"); at != std::string::npos;
             at = text.find("RESULTS CALC", at + 1)) {
            ++count;
        }
        return count;
    };
    Calculate();
    Choose("Risultatiseq");
    EXPECT_TRUE(Item("Risultatiseq").isChecked());
    Calculate();
    EXPECT_EQ(reports(), 2);
    Choose("Risultatiseq");
    EXPECT_FALSE(Item("Risultatiseq").isChecked());
    Calculate();
    EXPECT_EQ(reports(), 1);
}

TEST_F(Run, RefusalIsPlainlyMarkedAndItsNotesAreOneClickAway) {
    DrawPipe();
    boxes.Expect(kSelectAFluid);
    Calculate();
    EXPECT_TRUE(OutcomeButton().isVisible());
    EXPECT_TRUE(OutcomeButton().styleSheet().contains("background-color"));
    const idrova::MessageBox notes(OutcomeButton().text().toStdString(), "Computation",
                                   BoxIcon::Exclamation);
    boxes.Expect(notes);
    OutcomeButton().click();
}

TEST_F(Run, TableIsComputedInTableModeAndNotWhenItIsRefused) {
    ChooseWater();
    Choose("Tabella");
    const std::vector<std::pair<int, const char*>> row{{1, "1"}, {2, "3"},  {3, "2"},
                                                       {4, "2"}, {6, "50"}, {7, "100"}};
    for (const auto& [column, text] : row) {
        ChangeCell(program->project, program->table, 2, column, text);
    }
    Calculate();
    EXPECT_GT(program->work.WorkPipes[1].FlowRate, 1);
    ChangeCell(program->project, program->table, 2, 3, "7");
    boxes.Expect(kPointsLeaveGap);
    program->work.WorkPipes[1].FlowRate = -1;
    Calculate();
    EXPECT_EQ(program->work.WorkPipes[1].FlowRate, -1);
}

TEST_F(Run, TurnsNegativeFlowRates) {
    DrawPipe();
    program->project.Pipes[1].FlowRate = -2;
    boxes.Expect(kChangeDirections, Answer::Ok);
    Choose("Ordina");
    EXPECT_EQ(program->project.Pipes[1].FlowRate, 2);
}

TEST_F(Run, DeletedResultsCanNotBeShown) {
    PutFile(folder / "out.dat", "report");
    boxes.Expect(kAskDeleteResults, Answer::Ok);
    Choose("Elris");
    EXPECT_FALSE(std::filesystem::exists(folder / "out.dat"));
    boxes.Expect(kConfigureEditor).Expect(kNoResultsFile);
    Choose("Risultati");
}

/// Counts how often an object is painted.
class PaintCounter : public QObject {
  public:
    explicit PaintCounter(QObject& watched) { watched.installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        painted += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int painted = 0;
};

TEST_F(Run, ProgressIsPaintedWithoutHandlingEvents) {
    FrmAva progress(mdi.get());
    EXPECT_TRUE(mdi->rect().contains(progress.geometry()));
    const PaintCounter counter(Child<QProgressBar>("ProgressBar1"));
    progress.ShowProgress(25.4, 100);
    EXPECT_GE(counter.painted, 1);
    EXPECT_EQ(Child<QProgressBar>("ProgressBar1").value(), 25);
    EXPECT_EQ(Child<QProgressBar>("ProgressBar2").value(), 100);
}

}  // namespace
}  // namespace idrova
