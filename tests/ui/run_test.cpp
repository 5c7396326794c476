// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <QListWidget>
#include <QProgressBar>
#include <QToolButton>

#include "drawing_window.h"
#include "hydraulics/messages.h"
#include "projectfile/messages.h"
#include "results/messages.h"
#include "table/messages.h"
#include "table/table_edit.h"
#include "ui/windows/frm_ava.h"

namespace idrova {
namespace {

/// One pipe between two given pressures, drawn and in the table, no fluid yet.
class Run : public DrawingWindow {
  protected:
    void SetUp() override {
        Do("L5,5;L15,5;R10,5;Text6=100;Text7=50;Option1_1;Option2_1;Text10=3;Text9=2");
        const char* row[] = {"1", "3", "2", "2", "", "50", "100"};
        for (int i = 1; i <= 7; ++i) ChangeCell(project, program->table, 2, i, row[i - 1]);
    }

    void ChooseWater() {
        project.settings.FluidName = "water";
        project.settings.FluidDensity = 998.2;
        project.settings.FluidViscosity = 0.001002;
        program->changed();
    }

    std::string Stored() { return FileBytes(folder / "out.dat"); }
    bool IsMarked() { return outcome.styleSheet().contains("background-color"); }
    bool IsRed() {
        const QColor ground = outcome.grab().toImage().pixelColor(3, 3);
        return ground.red() > 2 * std::max(ground.green(), ground.blue());
    }
    QToolButton& outcome = Child<QToolButton>("StatusOutcome");
    QListWidget& problems = Child<QListWidget>("Problems");
};

TEST_F(Run, AtOnceFollowsEveryChangeAndAsksNothing) {
    const auto computed = [&] { return outcome.text().startsWith("Computed"); };
    ChooseWater();
    project.settings.BasePressure = -1e7F;  // of which the button's run would ask
    Choose("Subito");
    EXPECT_TRUE(QTest::qWaitFor(computed));
    const float before = project.Pipes[1].FlowRate;
    Do("Text6=10");
    EXPECT_EQ(outcome.text(), "Changed since the computation");
    EXPECT_TRUE(QTest::qWaitFor(computed));
    EXPECT_GT(project.Pipes[1].FlowRate, 2 * before);
    Do("Text6=1.");
    EXPECT_TRUE(QTest::qWaitFor(computed));
    QTest::keyClick(&Child<QLineEdit>("Text6"), Qt::Key_5);
    EXPECT_EQ(Shown("Text6"), "1.5") << "what is being typed is left alone";
    EXPECT_EQ(Stored(), "") << "until somebody asks for it";
    boxes.Expect(kConfigureEditor);
    Choose("Risultati");
    EXPECT_EQ(Stored(), program->report);
    Do("Text6=");
    EXPECT_TRUE(QTest::qWaitFor([&] { return outcome.text() == "Not computed"; }));
    EXPECT_GT(Child<QListWidget>("Problems").count(), 0);
    Choose("Tabella");
    EXPECT_TRUE(QTest::qWaitFor(computed));
}

TEST_F(Run, OfTheDrawingIsReportedKeptInSequenceAndDeleted) {
    ChooseWater();
    project.settings.BasePressure = 101325;
    Walk("Command1 # StatusOutcome # Computed");
    EXPECT_GT(project.Pipes[1].FlowRate, 1);
    EXPECT_THAT(outcome.toolTip().toStdString(),
                testing::ContainsRegex("^[0-9]+ \\+ [0-9]+ passes, "));
    EXPECT_FALSE(IsMarked());
    EXPECT_EQ(mdi->findChild<QWidget*>("FrmAva"), nullptr);
    Walk("Text6=120 # StatusOutcome # Changed since the computation");
    EXPECT_TRUE(IsMarked());
    Walk("Text6=100 # StatusOutcome # Computed # as it was computed");
    const std::string first = Stored();
    EXPECT_NE(first.find("RESULTS CALCULATION"), std::string::npos);
    EXPECT_EQ(program->report, first) << "what is printed is what is stored";

    Do("Risultatiseq;Command1");
    EXPECT_EQ(Stored(), first + program->report);
    Do("Risultatiseq;Command1");
    EXPECT_EQ(Stored(), program->report);

    project.Pipes[1].FlowRate = -2;
    for (const auto& [answer, flow] : {std::pair(Answer::Cancel, -2), std::pair(Answer::Ok, 2)}) {
        boxes.Expect(kChangeDirections, answer);
        Do("Ordina");
        EXPECT_EQ(project.Pipes[1].FlowRate, flow);
    }
    Do("Annulla");
    EXPECT_GT(project.Pipes[1].FlowRate, 3) << "counted as before, and what the run has found";

    boxes.Expect(kAskDeleteResults, Answer::Ok);
    Do("Elris");
    EXPECT_FALSE(std::filesystem::exists(folder / "out.dat"));
    boxes.Expect(kConfigureEditor).Expect(kNoResultsFile).Expect(kAskPrint, Answer::No);
    Do("Risultati;Stampa");
}

TEST_F(Run, OfTheTableIsMadeUnlessRefusedWhichIsPlainlyMarked) {
    boxes.Expect(kSelectAFluid);
    Walk("Command1;StatusOutcome # StatusOutcome? Problems? # 1|1");
    EXPECT_TRUE(IsRed());
    EXPECT_EQ(problems.item(0)->text(), "Select a fluid");

    ChooseWater();
    Walk("Tabella # StatusOutcome? # 0 # it is that of the drawing\n Command1");
    EXPECT_GT(program->work.WorkPipes[1].FlowRate, 1);
    EXPECT_FALSE(IsRed());
    const std::string report = Stored();
    ChangeCell(project, program->table, 2, 3, "7");
    boxes.Expect(PointsLeaveGap("2 to 6 are missing"));
    program->work.WorkPipes[1].FlowRate = -1;
    Walk("Command1 # StatusOutcome # Not computed");
    EXPECT_EQ(program->work.WorkPipes[1].FlowRate, -1);
    EXPECT_TRUE(IsRed());
    EXPECT_EQ(program->report, report);
    boxes.Expect(kLeaveProject, Answer::Ok);
    Walk(R"(Grafico # StatusOutcome? # 1
            Nuovo # StatusOutcome? # 0 # nothing is computed of the new one)");
}

TEST_F(Run, OfAPlantWithThreeMistakesIsMendedFromTheListOfProblems) {
    ChooseWater();
    Do("L15,5;L15,12;R15,8;Text6=100;Text7=50");
    project.Pipes[1].Length = 0;
    project.Pipes[2].Diameter = 0;
    project.PressureUnknown[1] = true;
    boxes.Expect(RefusalBox({RefusalKind::ZeroLength, {1}}));
    Do("Command1;StatusOutcome");
    ASSERT_GE(problems.count(), 3);
    problems.setCurrentRow(1);
    Do("Problems!");
    EXPECT_EQ(project.CurrentPipe, 2);
    Do("Text7=50");
    EXPECT_EQ(problems.item(0)->text(), "Pipe 1 has no length") << "what is mended is gone";
    problems.setCurrentRow(0);
    Do("Problems!");
    EXPECT_EQ(project.CurrentPipe, 1);
    Do("Text6=100");
    EXPECT_EQ(problems.item(0)->text(),
              "Point 1 is an open end: give its pressure or the flow of pipe 1");
    problems.setCurrentRow(0);
    Do("Problems!;Option1_1;Text10=3");
    EXPECT_EQ(problems.count(), 0);
    Walk("Command1 # StatusOutcome # Computed");
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
