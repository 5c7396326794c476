// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include "projectfile/project_file.h"
#include "support/networks.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

class YesToAll final : public MessageBoxes {
  public:
    Answer Show(const MessageBox& /*box*/) override { return Answer::Yes; }
};

/// Every pipe, point and table row in use, and a pump between the points of each hundredth cell.
NetworkBuilder FullProject() {
    NetworkBuilder network;
    for (int i = 0; i < kMaxPoints; ++i) network.AddPoint(1 + i % 20 * 2, 1 + i / 20 * 2);
    for (int i = 1; i <= kMaxPipes; ++i) network.AddPipe(2 * i - 1, 2 * i);
    for (int cell = 60; cell <= network->CellCount(); cell += 100) {
        CellRec& pump = network->Cells[cell];
        pump.Name = "Pump";
        pump.Kind = CellKind::Pump;
        pump.Param1 = -123.456F;
        pump.PumpConstant = 2e5F;
        pump.Placed = true;
    }
    for (int row = kFirstTableRow; row <= kLastTableRow; ++row) {
        TableRowRec& record = network->TableRows[row];
        record.StartPoint = static_cast<std::int16_t>(row - 1);
        record.EndPoint = static_cast<std::int16_t>(row);
        record.RowDiameter = 0.1F;
        record.RowLength = 12.5F;
    }
    network->numins = kMaxTableRows;
    return network;
}

void Save(benchmark::State& run) {
    NetworkBuilder network = FullProject();
    const TempFolder folder;
    YesToAll boxes;
    for (auto _ : run) {
        if (SaveProject(*network, folder / "full.iv", boxes) != SaveOutcome::Saved) {
            run.SkipWithError("not saved");
            break;
        }
    }
}
BENCHMARK(Save)->Unit(benchmark::kMillisecond);

void Open(benchmark::State& run) {
    NetworkBuilder network = FullProject();
    const TempFolder folder;
    YesToAll boxes;
    SaveProject(*network, folder / "full.iv", boxes);
    NetworkBuilder opened;
    for (auto _ : run) {
        if (OpenProject(*opened, folder / "full.iv", boxes) != OpenOutcome::Opened) {
            run.SkipWithError("not opened");
            break;
        }
    }
    run.counters["pipes"] = opened->numtubo;
}
BENCHMARK(Open)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace idrova
