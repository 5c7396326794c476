// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/run_command.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "hydraulics/messages.h"
#include "support/network_run.h"

namespace idrova {
namespace {

/// Writes down what a run does to the program around it, in order.
class RecordedHost final : public MessageBoxes {
  public:
    Answer Show(const MessageBox& box) override {
        steps += box.title + ';';
        last = box;
        return box.buttons == BoxButtons::YesNo ? answer : Answer::Ok;
    }

    RunHost Host() {
        return {.boxes = *this,
                .writeReport =
                    [this](const Settings& settings, const WorkNetwork& work) {
                        steps += "report;";
                        section = settings.SectionType;
                        reported = work;
                        return report;
                    },
                .showProgress =
                    [this](const RunProgress&) {
                        if (!steps.ends_with("progress;")) steps += "progress;";
                        return !stops;
                    },
                .endProgress = [this] { steps += "end;"; },
                .seed = 1};
    }

    std::string steps;
    MessageBox last{"", ""};
    Answer answer = Answer::No;
    Status report = Done{};
    bool stops = false;
    Section section = Section::Circular;
    WorkNetwork reported;
};

class RunCommand : public testing::Test {
  protected:
    /// A pump out of its range that sucks a point below 0 with a given flow.
    RunCommand() {
        network.SetPressure(4, 20000);
        network.SetFlow(1, 1);
        CellRec& pump = Pump();
        pump.Param2 = 1e5F;
        pump.MinFlow = 2;
        network->settings.BasePressure = 1000;
    }

    CellRec& Pump() { return network->Cells[network->Points[2].Cell]; }

    std::string Run() {
        host->steps.clear();
        record = RunNetwork(*network, texts, *work, host->Host());
        return host->steps;
    }

    NetworkBuilder network = CutPipe(CellKind::Pump);
    TableTexts texts;
    std::unique_ptr<WorkNetwork> work = std::make_unique<WorkNetwork>();
    std::unique_ptr<RecordedHost> host = std::make_unique<RecordedHost>();
    RunRecord record;
};

TEST_F(RunCommand, StoresReportsThenChecksPumpsThenPressures) {
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        host->answer = answer;
        EXPECT_EQ(Run(), "progress;report;end;Working point check;Pressure check;");
        EXPECT_EQ(host->last, NegativePressures(1000 / kPascalPerBar));
        EXPECT_EQ(record.outcome.end, RunEnd::Settled);
        const float lowest = work->WorkPoints[2].Pressure;
        EXPECT_LT(lowest, 0);
        EXPECT_EQ(network->settings.BasePressure, answer == Answer::Yes ? -lowest : 1000);
    }
    EXPECT_EQ(Pump().Result, 1);
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(network->Points[i].Pressure, host->reported.WorkPoints[i].Pressure);
        EXPECT_EQ(record.results->WorkPoints[i].Pressure, host->reported.WorkPoints[i].Pressure);
        EXPECT_EQ(host->reported.WorkPoints[i].Pressure + 1000, work->WorkPoints[i].Pressure);
    }
    EXPECT_EQ(network->Pipes[2].FlowRate, work->WorkPipes[2].FlowRate);
    EXPECT_NEAR(network->Pipes[2].FlowRate, 1, 1e-6);

    network->Pipes[2].FlowRate = 0;
    RestoreResults(record, *network);
    EXPECT_EQ(network->Pipes[2].FlowRate, work->WorkPipes[2].FlowRate);
    host->report = Failure{"full"};
    Pump().MinFlow = 0;
    network->Pipes[2].FlowRate = 0;
    RestoreResults(record, *network);
    EXPECT_EQ(network->Pipes[2].FlowRate, 0) << "of another pump";
    network.SetPressure(4, 5e5F);
    EXPECT_EQ(Run(), "progress;report;end;Results;") << "what is in range is not told";
    EXPECT_GT(network->Points[1].Pressure, 4e5F);
}

TEST_F(RunCommand, WithoutResultsNothingIsStored) {
    const auto expectNothing = [this](const char* steps, RunEnd end) {
        const auto before = std::make_unique<Project>(*network);
        EXPECT_EQ(Run(), steps);
        EXPECT_EQ(record.outcome.end, end);
        EXPECT_EQ(*network, *before);
        EXPECT_FALSE(record.results);
    };
    host->stops = true;
    expectNothing("progress;end;", RunEnd::Stopped);
    host->stops = false;
    network->FlowUnknown[1] = true;
    expectNothing("end;Unsolving system;", RunEnd::Refused);
    EXPECT_EQ(record.outcome.notes.at(0).number, 1) << "the open end that needs a value";
    network.SetPressure(1, INFINITY);
    expectNothing("end;Computation;", RunEnd::NotFinite);
    network->settings.Mode = WorkMode::Table;
    network->TableRows[2] = {.StartPoint = 1, .EndPoint = 7};
    network->numins = 1;
    expectNothing("Coherence check;", RunEnd::Refused);
}

TEST_F(RunCommand, TableLeavesTheDrawing) {
    network->settings.Mode = WorkMode::Table;
    network->TableRows[2] = {1, 3e5F, 2, 2e5F, .1F, 100, 0, 0, 0, true, true};
    network->numins = 1;
    FillTable(*network, texts);
    work->WorkComponents.resize(1);
    const auto before = std::make_unique<Project>(*network);
    EXPECT_EQ(Run(), "progress;report;end;");
    EXPECT_GT(work->WorkPipes[1].FlowRate, 1);
    EXPECT_EQ(*network, *before);
}

TEST_F(RunCommand, SinglePipeFindsEachUnknownAndNothingWithoutAPipe) {
    Settings& settings = network->settings;
    settings.BasePressure = -1e6F;                // which is not asked about
    settings.SectionType = Section::Rectangular;  // of the drawing
    SinglePipe pipe;
    const auto find = [&](PipeQuantity unknown) {
        host->steps.clear();
        pipe.unknown = unknown;
        const SinglePipeResult result = RunSinglePipe(pipe, *network, *work);
        TellRun(result.record, host->Host());
        EXPECT_EQ(result.record.outcome.end == RunEnd::Settled, result.box.has_value());
        return result.box.value_or(BoxText()).text;
    };
    TypeQuantity(pipe, PipeQuantity::PressureAt1, "2");
    TypeQuantity(pipe, PipeQuantity::PressureAt2, "1");
    TypeQuantity(pipe, PipeQuantity::Length, "100");
    EXPECT_EQ(find(PipeQuantity::FlowRate) + host->steps, "end;") << "it has no diameter yet";
    TypeQuantity(pipe, PipeQuantity::Diameter, "50");
    TypeQuantity(pipe, PipeQuantity::FlowRate, find(PipeQuantity::FlowRate));
    EXPECT_NEAR(pipe.flowRate, 3.9, .1);
    EXPECT_EQ(host->steps, "report;end;");
    EXPECT_EQ(host->section, Section::Circular);
    pipe.pressure1 = 0;
    EXPECT_EQ(find(PipeQuantity::PressureAt1), "2.");
    TypeQuantity(pipe, PipeQuantity::PressureAt1, "2");
    pipe.pressure2 = 0;
    EXPECT_EQ(find(PipeQuantity::PressureAt2), "1.");
    EXPECT_EQ(find(PipeQuantity::Length) + host->steps, "end;Indefinite system;");
}

}  // namespace
}  // namespace idrova
