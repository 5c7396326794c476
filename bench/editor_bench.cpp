// SPDX-License-Identifier: GPL-3.0-or-later
// The real windows: what a user waits for after a click or a key, repaint included.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QAction>
#include <QApplication>
#include <QGraphicsView>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <memory>

#include "editor/cell_click.h"
#include "editor/history.h"
#include "model/grid.h"
#include "projectfile/project_file.h"
#include "support/drawing_invariants.h"
#include "support/temp_folder.h"
#include "ui/frame/file_commands.h"
#include "ui/frame/mdi.h"
#include "ui/kit/child_window.h"
#include "ui/kit/child_windows.h"
#include "ui/program.h"

namespace idrova {
namespace {

class NoBoxes final : public MessageBoxes {
  public:
    Answer Show(const MessageBox& /*box*/) override { return Answer::Cancel; }
};

/// The main window with a grid of 100 x 100 cells and `pipes` pipes that touch nothing.
class Plant {
  public:
    explicit Plant(int pipes) {
        mdi_.resize(1360, 1080);
        project.GridSize = kMaxGridSize;
        mdi_.Windows().Close("FrmCel");
        mdi_.OpenModeWindow();
        mdi_.show();
        benchmark::DoNotOptimize(QTest::qWaitForWindowExposed(&mdi_));
        view_ = mdi_.Windows().Find("FrmCel")->findChild<QGraphicsView*>("Drawing");
        for (int i = 0; i < pipes; ++i) {
            Click(1 + 4 * (i % 25), 1 + i / 25, MouseButton::Left);
            Click(3 + 4 * (i % 25), 1 + i / 25, MouseButton::Left);
        }
    }

    void Click(int column, int row, MouseButton button) {
        CellClick(project, program_->editor, CellAt(column, row, project.GridSize), button, boxes_);
    }

    /// A press of the mouse, and everything shown that it changed.
    void Press(int column, int row, Qt::MouseButton button) {
        const ScreenPoint at = CellCentre(project, CellAt(column, row, project.GridSize));
        QTest::mousePress(view_->viewport(), button, {}, view_->mapFromScene(QPointF(at.x, at.y)));
        QApplication::processEvents();
    }

    void Move(int column, int row) {
        const ScreenPoint at = CellCentre(project, CellAt(column, row, project.GridSize));
        QTest::mouseMove(view_->viewport(), view_->mapFromScene(QPointF(at.x, at.y)));
        QApplication::processEvents();
    }

    void ShowState() { mdi_.ShowState(); }

    /// Chooses a menu item, and everything shown that it changed.
    void Choose(const QString& item) {
        mdi_.findChild<QAction*>(item)->trigger();
        QApplication::processEvents();
    }

    void Open(const std::filesystem::path& file) {
        idrova::OpenFile(mdi_, file);
        view_->viewport()->repaint();
    }

    void CloseWindow(const char* name) {
        mdi_.Windows().Close(name);
        QApplication::processEvents();
    }

    /// Sorts the results by flow, in the window that is open.
    void SortResults(bool rising) {
        auto* pipes = mdi_.Windows().Find("FrmRis")->findChild<QTableView*>("Pipes");
        pipes->sortByColumn(3, rising ? Qt::AscendingOrder : Qt::DescendingOrder);
        QApplication::processEvents();
    }

    void Redraw() {
        editor.ScrX = 3 - editor.ScrX;
        ShowNow();
    }

    /// The state, as soon as the windows come to show it.
    void ShowNow() {
        mdi_.ShowState();
        QApplication::processEvents();
    }

    /// As if all pipes had been computed.
    void Compute() {
        const auto results = std::make_unique<WorkNetwork>();
        CopyNetwork(project, *results);
        for (int i = 1; i <= results->WorkPipeCount; ++i) {
            PipeRec& pipe = results->WorkPipes[i];
            pipe.FlowRate = static_cast<float>(i) / 10;
            pipe.Diameter = .05F;
            pipe.Length = 10;
        }
        project.settings.FluidDensity = 998.2;
        project.settings.FluidViscosity = .001;
        RunRecord record{InputsOf(project), {.end = RunEnd::Settled}, project.settings};
        record.results = *results;
        program_->records[WorkMode::Graphic] = std::move(record);
    }

  private:
    TempFolder folder_;
    NoBoxes boxes_;
    std::unique_ptr<Program> program_ = std::make_unique<Program>(folder_.Path(), boxes_);
    MDI mdi_{*program_};
    QGraphicsView* view_ = nullptr;

  public:
    Project& project = program_->project;
    Editor& editor = program_->editor;
};

void SelectPipe(benchmark::State& state) {
    Plant plant(kMaxPipes);
    if (state.range(0) != 0) {
        plant.Compute();
        plant.editor.labels = LabelKind::Flows;
        plant.editor.DataShown = true;
    }
    int row = 1;
    for (auto _ : state) {
        plant.Press(2, row, Qt::RightButton);
        row = 9 - row;
    }
}
BENCHMARK(SelectPipe)->Arg(0)->Arg(1)->ArgName("labels")->Unit(benchmark::kMillisecond);

void CompletePipe(benchmark::State& state) {
    Plant plant(kMaxPipes - 1);
    for (auto _ : state) {
        state.PauseTiming();
        plant.Click(50, 50, MouseButton::Left);
        state.ResumeTiming();
        plant.Press(50, 60, Qt::LeftButton);
        state.PauseTiming();
        plant.project.numtubo = kMaxPipes - 1;  // room for the next
        plant.project.npres -= 2;
        state.ResumeTiming();
    }
}
BENCHMARK(CompletePipe)->Unit(benchmark::kMillisecond);

/// With the longest history there is, each step of which changed every pipe.
void UndoAll(benchmark::State& state) {
    Plant plant(kMaxPipes);
    plant.ShowState();
    const std::size_t before = mallinfo2().uordblks;
    for (std::size_t step = 1; step <= EditHistory::kMaxSteps; ++step) {
        for (int i = 1; i <= kMaxPipes; ++i) {
            plant.project.Pipes[i].Length = static_cast<float>(step);
        }
        plant.ShowState();
    }
    state.counters["history_MB"] = static_cast<double>(mallinfo2().uordblks - before) / 1e6;
    for (auto _ : state) {
        plant.Choose("Annulla");
        state.PauseTiming();
        plant.Choose("Ripeti");
        state.ResumeTiming();
    }
}
BENCHMARK(UndoAll)->Unit(benchmark::kMillisecond);

/// The mouse goes on while a pipe is drawn.
void MoveWhileDrawing(benchmark::State& state) {
    Plant plant(kMaxPipes - 1);
    plant.Press(50, 50, Qt::LeftButton);
    int row = 60;
    for (auto _ : state) {
        plant.Move(50, row);
        row = 121 - row;
    }
}
BENCHMARK(MoveWhileDrawing)->Unit(benchmark::kMillisecond);

void FullRedraw(benchmark::State& state) {
    Plant plant(kMaxPipes);
    plant.Compute();
    plant.editor.DataShown = state.range(0) != 0;
    if (state.range(0) == 2) plant.editor.labels = LabelKind::Flows;
    for (auto _ : state) plant.Redraw();
}
BENCHMARK(FullRedraw)->DenseRange(0, 2)->ArgName("data")->Unit(benchmark::kMillisecond);

/// Flows, velocities, flows ...
void SwitchLabels(benchmark::State& state) {
    Plant plant(kMaxPipes);
    plant.Compute();
    plant.editor.DataShown = true;
    for (auto _ : state) {
        const bool flows = plant.editor.labels == LabelKind::Flows;
        plant.editor.labels = flows ? LabelKind::Velocities : LabelKind::Flows;
        plant.ShowNow();
    }
}
BENCHMARK(SwitchLabels)->Unit(benchmark::kMillisecond);

void SwitchColours(benchmark::State& state) {
    Plant plant(kMaxPipes);
    plant.Compute();
    plant.editor.labels = LabelKind::Flows;
    plant.editor.DataShown = true;
    for (auto _ : state) {
        const bool flows = plant.editor.colours == ColourKind::Flows;
        plant.editor.colours = flows ? ColourKind::None : ColourKind::Flows;
        plant.ShowNow();
    }
}
BENCHMARK(SwitchColours)->Unit(benchmark::kMillisecond);

void SortResults(benchmark::State& state) {
    Plant plant(kMaxPipes);
    plant.Compute();
    plant.Choose("TabRisultati");
    bool rising = true;
    for (auto _ : state) {
        plant.SortResults(rising);
        rising = !rising;
    }
}
BENCHMARK(SortResults)->Unit(benchmark::kMillisecond);

void MainWindowOpens(benchmark::State& state) {
    for (auto _ : state) {
        auto plant = std::make_unique<Plant>(0);
        state.PauseTiming();
        plant.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(MainWindowOpens)->Unit(benchmark::kMillisecond);

void OpenProject(benchmark::State& state) {
    Plant plant(kMaxPipes);
    const TempFolder folder;
    if (!WriteProject(plant.project, folder / "plant.iv")) return state.SkipWithError("no file");
    for (auto _ : state) plant.Open(folder / "plant.iv");
    if (plant.project.ProjectName == kNewProject) state.SkipWithError("not opened");
}
BENCHMARK(OpenProject)->Unit(benchmark::kMillisecond);

/// A menu item with 200 pipes drawn, and what undoes it.
void MenuItem(benchmark::State& state, const char* item, const char* back, const char* window) {
    Plant plant(kMaxPipes);
    for (auto _ : state) {
        plant.Choose(item);
        state.PauseTiming();
        if (back != nullptr) plant.Choose(back);
        if (window != nullptr) plant.CloseWindow(window);
        state.ResumeTiming();
    }
    state.SetLabel(item);
}
BENCHMARK_CAPTURE(MenuItem, table, "Tabella", "Grafico", nullptr)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MenuItem, graphic, "Grafico", "Tabella", nullptr)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MenuItem, single, "sintub", "Grafico", nullptr)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MenuItem, section, "Rettangolare", "Circolare", nullptr)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MenuItem, fluid, "Fluido", nullptr, "FrmFlu")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MenuItem, pump, "Pompe", nullptr, "FrmPompa")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MenuItem, file, "Apri", nullptr, "FrmFile")->Unit(benchmark::kMillisecond);

void CheckInvariants(benchmark::State& state) {
    const Plant plant(kMaxPipes);
    for (auto _ : state) benchmark::DoNotOptimize(BrokenInvariants(plant.project, plant.editor));
}
BENCHMARK(CheckInvariants)->Unit(benchmark::kMillisecond);

void SinglePipeKey(benchmark::State& state) {
    const TempFolder folder;
    NoBoxes boxes;
    const auto program = std::make_unique<Program>(folder.Path(), boxes);
    MDI mdi(*program);
    program->project.settings.FluidDensity = 998.2;
    program->project.settings.FluidViscosity = 0.001002;
    mdi.findChild<QAction*>("sintub")->trigger();
    mdi.show();
    const QWidget& window = *mdi.Windows().Find("FrmSin");
    const auto box = [&window](const char* name) { return window.findChild<QLineEdit*>(name); };
    box("Text2")->setText("2");
    box("Text3")->setText("1");
    box("Text5")->setText("53.8");
    for (auto _ : state) {
        box("Text1")->setText(box("Text1")->text() == "100" ? "101" : "100");
        QApplication::processEvents();
    }
}
BENCHMARK(SinglePipeKey)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace idrova

int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
