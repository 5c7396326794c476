// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <sys/wait.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

#include "physdata/fluids.h"
#include "physdata/pumps.h"
#include "projectfile/project_file.h"
#include "support/drawing_invariants.h"
#include "support/networks.h"
#include "support/scripted_boxes.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::StartsWith;
using Json = nlohmann::json;

constexpr float kBar = kPascalPerBar;

/// What a run of idrova-calc left behind.
struct CalcResult {
    int status = -1;
    std::string out, err;

    Json Parsed() const { return Json::parse(out, nullptr, false); }
};

/// Two pipes in a row from 3 bar down to 1 bar, drawn and in the table.
NetworkBuilder TwoPipes() {
    NetworkBuilder network;
    const int from = network.AddPoint(5, 5);
    const int middle = network.AddPoint(10, 5);
    const int to = network.AddPoint(10, 12);
    network.AddPipe(from, middle);
    network.AddPipe(middle, to);
    network.SetPressure(from, 3 * kBar);
    network.SetPressure(to, kBar);
    network->TableRows[2] = {1, 3 * kBar, 2, 0, .1F, 100, 0, 0, 0, true};
    network->TableRows[3] = {2, 0, 3, kBar, .1F, 100, 0, 0, 0, false, true};
    return network;
}

/// Runs the real program in a folder of its own that holds a database of three fluids, one of one
/// pump, and a project.
class Calc : public testing::Test {
  protected:
    Calc() {
        FluidDb fluids = WithRecord({}, FluidRecord{"Water", 998.2F, .001002F});
        fluids = WithRecord(fluids, {"Light oil", 850, .01F});
        fluids = WithRecord(fluids, {"Air", 1.293F, 1.82e-5F, 1});
        PutFile(folder / "fluidi.dat", EncodeRecords(fluids));
        const PumpRecord booster{"Booster", 400000, 0, 100000, 10};
        PutFile(folder / "pompe.dat", EncodeRecords(WithRecord({}, booster)));
        Put("plant.iv", *TwoPipes());
    }

    void Put(std::string_view name, const Project& project) {
        PutFile(folder / name, ProjectFileText(project));
    }

    /// `arguments` as on a command line, relative to the folder.
    CalcResult Run(const std::string& arguments) {
        const std::string command = "cd '" + folder.Path().string() + "' && '" IDROVA_CALC "' " +
                                    arguments + " >stdout.txt 2>stderr.txt";
        const int status = std::system(command.c_str());  // NOLINT(concurrency-mt-unsafe)
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, FileBytes(folder / "stdout.txt"),
                FileBytes(folder / "stderr.txt")};
    }

    bool Has(std::string_view name) const { return fs::exists(folder / name); }

    TempFolder folder;
};

TEST_F(Calc, ReportIsPrintedAndWritten) {
    const CalcResult run = Run("plant.iv");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, FileBytes(folder / "out.dat"));
    EXPECT_THAT(run.out, StartsWith("\r\n*******"));
    EXPECT_THAT(run.out, HasSubstr((folder / "plant.iv").string()));

    const CalcResult second = Run("--append plant.iv");
    EXPECT_EQ(FileBytes(folder / "out.dat"), run.out + second.out);
    fs::remove(folder / "out.dat");
    EXPECT_EQ(Run("--no-report plant.iv").out, "");
    EXPECT_FALSE(Has("out.dat"));
}

TEST_F(Calc, JsonTellsTheWholeRun) {
    const CalcResult run = Run("--json --base-pressure -1.5 plant.iv");
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(Has("out.dat"));
    EXPECT_THAT(run.err, StartsWith("Pressure check: Some pressures are negative"));
    EXPECT_EQ(std::ranges::count(run.err, '\n'), 1) << "one message, one line";

    Json json = run.Parsed();
    EXPECT_GE(json["passes"][0], 2);
    Json pipe = json["pipes"].at(1);
    const double flow = pipe["flow_kg_s"];
    const double speed = flow / 998.2 / (.1 * .1 * 3.1415 / 4);
    EXPECT_NEAR(pipe["velocity_m_s"], speed, 1e-6 * speed);
    EXPECT_NEAR(pipe["reynolds"], 998.2 * speed * .1 / .001002, 1);
    EXPECT_NEAR(pipe["drop_Pa"], 101325, 30);
    for (const char* key : {"velocity_m_s", "reynolds", "drop_Pa", "flow_kg_s"}) pipe.erase(key);
    json = {json["outcome"], json["messages"][0]["icon"], json["pumps"], pipe, json["points"][0]};
    EXPECT_EQ(json.dump(),
              R"(["settled","information",[],{"from":2,"known":false,"number":2,"to":3},)"
              R"({"known":true,"number":1,"pressure_Pa":303975.0}])");
}

TEST_F(Calc, SettingsReachTheReport) {
    NetworkBuilder network = TwoPipes();
    for (int i = 1; i <= 2; ++i) network->Pipes[i].OuterSize = .05F;
    Put("plant.iv", *network);
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", "Fluid: Water\r\nDensity [kg/mc]:             998.2 "},
        {"--fluid 2", "Fluid: [2] Light oil\r\nDensity [kg/mc]:             850 "},
        {"--fluid 'Light oil'", "Fluid: [2] Light oil\r\n"},
        {"--density 700.5 --viscosity 2e-3", " 700.5        viscosity:     .002 "},
        {"--roughness 2.5e-5", "Roughness[m]:                2.5E-05 "},
        {"--section rectangular", "   Side b [mm]"},
        {"--fluid 3 --equation compressible --temperature -10.5", "Compressible gas"},
        {"--pressure-unit mbar", "Pressure [Pa],[mbar]         101325       1000."},
        {"--mode table", "Mode: Table\r\n"},
    };
    for (const auto& [options, line] : cases) {
        const CalcResult run = Run(options + " plant.iv");
        EXPECT_EQ(run.status, 0) << options << run.err;
        EXPECT_THAT(run.out, HasSubstr(line));
    }
}

TEST_F(Calc, SettingsReachTheComputation) {
    const auto flow = [this](const std::string& options) {
        const Json json = Run("--json --fluid 3 " + options + " plant.iv").Parsed();
        return json["pipes"].at(0)["flow_kg_s"].get<double>();
    };
    EXPECT_LT(flow("--roughness .002"), .9 * flow(""));
    const double cold = flow("--equation compressible");
    const double hot = flow("--equation compressible --temperature 273.15");
    EXPECT_NEAR(cold / hot, std::sqrt(2), .01) << "twice the kelvin";
    EXPECT_GT(flow("--equation compressible --base-pressure 3"), 1.2 * cold);
    EXPECT_EQ(flow("--seed 5 --mode table"), flow("--seed 5"));
    std::set<std::string> passes;
    for (const char* seed : {"1", "2", "3", "4", "5", "6"}) {
        passes.insert(
            Run("--json --seed " + std::string(seed) + " plant.iv").Parsed()["passes"].dump());
    }
    EXPECT_GT(passes.size(), 1U) << "other start values, other passes";
}

TEST_F(Calc, PumpConstantsComeFromTheDatabaseAndAreSaved) {
    NetworkBuilder network;
    const int from = network.AddPoint(5, 5);
    const int suction = network.AddPoint(10, 5);
    const int delivery = network.AddPoint(10, 5);
    const int to = network.AddPoint(20, 5);
    network.AddPipe(from, suction);
    network.AddPipe(delivery, to);
    network.AddComponent(suction, CellKind::Pump).Name = "Booster";
    network->Cells[210].Param1 = -3000;
    network.SetPressure(from, kBar);
    network.SetPressure(to, 3 * kBar);
    Put("pumped.iv", *network);

    const CalcResult run = Run("--json --save solved.iv pumped.iv");
    ASSERT_EQ(run.status, 0) << run.err;
    const Json json = run.Parsed();
    const double flow = json["pumps"].at(0)["flow_kg_s"];
    const double lift = json["points"].at(2)["pressure_Pa"].get<double>() -
                        json["points"].at(1)["pressure_Pa"].get<double>();
    EXPECT_NEAR(lift, 400000 - 3000 * flow * flow, 40);
    EXPECT_THAT(json["pumps"].dump(), HasSubstr(R"("in_range":true,"name":"Booster")"));
    EXPECT_THAT(FileBytes(folder / "solved.iv"),
                HasSubstr("pump constants\r\n 1 \r\n 210           400000 \r\n"));

    fs::remove(folder / "pompe.dat");
    EXPECT_EQ(Run("--json solved.iv").Parsed()["outcome"], "settled");
    EXPECT_FALSE(Has("pompe.dat")) << "nothing is created";
}

TEST_F(Calc, SavingReplacesOnlyWhenForced) {
    PutFile(folder / "old.iv", "old");
    const CalcResult kept = Run("--save old.iv plant.iv");
    EXPECT_EQ(kept.status, 2);
    EXPECT_EQ(kept.err, "Save file: old.iv exists; --force replaces it\n");
    EXPECT_EQ(FileBytes(folder / "old.iv"), "old");
    EXPECT_EQ(Run("--save old.iv --force plant.iv").status, 0);
    EXPECT_THAT(FileBytes(folder / "old.iv"), ContainsRegex(" 2026[0-9.]+ +210 "));
}

TEST_F(Calc, RefusalsSayWhyAndEndWithOne) {
    NetworkBuilder open = TwoPipes();
    open->PressureUnknown[3] = true;
    open->TableRows[3].StartPoint = 5;
    Put("open.iv", *open);
    Put("empty.iv", *NetworkBuilder());
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"open.iv", "Unsolving system:  5 Unknowns >  3 Equations + 1 Known terms Set  1 flow"},
        {"--mode table open.iv", "Coherence check: The point numbers must run from 1 without"},
        {"--equation compressible plant.iv", "The selected fluid is uncompressible\n"},
        {"--section rectangular plant.iv", "Check: Pipe  1 with zero diameter\n"},
        {"--data nowhere plant.iv", "Fluid: Select a fluid\n"},
        {"empty.iv", "Nothing to compute\n"},
    };
    for (const auto& [arguments, message] : cases) {
        const CalcResult run = Run(arguments);
        EXPECT_EQ(run.status, 1) << arguments;
        EXPECT_EQ(run.out, "");
        EXPECT_THAT(run.err, HasSubstr(message));
        EXPECT_FALSE(Has("out.dat") || Has("nowhere"));
    }
    EXPECT_EQ(Run("--json empty.iv").Parsed()["outcome"], "empty");
    EXPECT_EQ(Run("--json open.iv").Parsed()["outcome"], "refused");
}

TEST_F(Calc, WrongUseAndUnusableFilesEndWithTwo) {
    PutFile(folder / "letters.iv", "2.6.3\r\nnumtubo\r\nmany\r\n");
    PutFile(folder / "old.iv", "2.4\r\n");
    for (const char* name : {"blocked/out.dat", "broken/fluidi.dat", "nopumps/pompe.dat"}) {
        fs::create_directories(folder / name);
    }
    std::istringstream wrong(
        R"(missing.iv;letters.iv;old.iv;blocked;plant.iv plant.iv;--unknown plant.iv;
--mode single plant.iv;--roughness 1mm plant.iv;--roughness -1 plant.iv;--seed x plant.iv;
--temperature -274 plant.iv;--density 1 plant.iv;--density nan --viscosity 1 plant.iv;
--viscosity 1 plant.iv;--force plant.iv;--fluid 4 plant.iv;--fluid Wine plant.iv;
--fluid 1 --density 1 --viscosity 1 plant.iv;--data broken plant.iv;
--data nopumps --density 1 --viscosity 1e-5 plant.iv;
--data blocked --density 1 --viscosity 1e-5 plant.iv;--save nowhere/x.iv plant.iv;)");
    for (std::string arguments; std::getline(wrong >> std::ws, arguments, ';');) {
        const CalcResult run = Run(arguments);
        EXPECT_EQ(run.status, 2) << arguments;
        EXPECT_NE(run.err, "") << arguments;
    }
    EXPECT_EQ(Run("").status, 2);
    EXPECT_EQ(Run("--help").status, 0);
    EXPECT_EQ(Run("--version").out, "idrova-calc 2.6.3\n");
}

TEST_F(Calc, ResultsThatAreNoSolutionEndWithThree) {
    NetworkBuilder network = TwoPipes();
    network.SetFlow(1, 0);
    network.SetPressure(2, 3 * kBar);
    const int from = network.AddPoint(20, 20);
    network.AddPipe(from, network.AddPoint(30, 20));
    Put("singular.iv", *network);
    const CalcResult run = Run("--json singular.iv");
    EXPECT_EQ(run.status, 3);
    EXPECT_EQ(run.Parsed()["outcome"], "singular");
    EXPECT_THAT(run.err, HasSubstr("Pipe 1 has its flow and both end pressures given"));
}

/// A number that the README of the samples states.
struct Stated {
    const char* list;
    int number;  ///< of the pipe or point, cell of the pump
    double value, tolerance;
};

struct Sample {
    std::string file, options;
    std::vector<Stated> stated;  ///< pipes and pumps: kg/h; points: Pa
};

const std::vector<Sample> kSamples = {
    {"booster-station.iv",
     "",
     {{"pumps", 967, 17773.5, .2}, {"pipes", 18, -35527.2, .2}, {"points", 27, 127369, 60}}},
    {"compressed-air.iv",
     "--fluid Air --equation compressible --temperature 20",
     {{"pipes", 7, -22.48, .04}, {"points", 8, 685548, 5}, {"points", 15, 681162.5, 5}}},
    {"heating-circuit.iv",
     "--fluid 'Water 60 °C'",
     {{"pumps", 406, 3950, .2}, {"pipes", 7, 1358.3, .2}, {"pipes", 11, 1283, .2}}},
    {"irrigation-table.iv",
     "--mode table",
     {{"pipes", 36, 13346.1, .2}, {"points", 13, 370056, 20}, {"points", 35, 367491.5, 20}}},
    {"ring-main.iv",
     "",
     {{"pipes", 2, 27119.9, .2}, {"pipes", 4, 3061.4, .2}, {"points", 5, 382995, 20}}},
};

/// The inflow less the outflow of every point where pipes meet, kg/s.
std::map<int, double> Balances(const Json& json) {
    std::map<int, double> balance;
    std::map<int, int> ends;
    for (const Json& pipe : json["pipes"]) {
        balance[pipe["to"]] += pipe["flow_kg_s"].get<double>();
        balance[pipe["from"]] -= pipe["flow_kg_s"].get<double>();
        ++ends[pipe["to"]];
        ++ends[pipe["from"]];
    }
    std::erase_if(balance, [&ends](const auto& point) { return ends[point.first] < 2; });
    return balance;
}

double Found(const Json& json, const Stated& stated) {
    for (const Json& entry : json[stated.list]) {
        if (entry[entry.contains("cell") ? "cell" : "number"] != stated.number) continue;
        if (entry.contains("pressure_Pa")) return entry["pressure_Pa"];
        return entry["flow_kg_s"].get<double>() * kSecondsPerHour;
    }
    return -1;
}

TEST_F(Calc, SamplesAreWhatAUserCouldDrawAndSettleToWhatTheirReadmeStates) {
    for (const Sample& sample : kSamples) {
        SCOPED_TRACE(sample.file);
        const auto project = std::make_unique<Project>();
        InitialiseProject(*project);
        RecordedBoxes boxes;
        Editor editor;
        ASSERT_EQ(OpenProject(*project, IDROVA_DATA "/samples/" + sample.file, boxes),
                  OpenOutcome::Opened);
        RedrawProject(*project, editor);
        EXPECT_EQ(BrokenInvariants(*project, editor), std::vector<std::string>());
        EXPECT_NE(project->ProjectDescription, "");
        for (const std::string seed : {"1", "2", "3"}) {
            const CalcResult run =
                Run("--json --no-report --data '" IDROVA_DATA "' --seed " + seed + " " +
                    sample.options + " " IDROVA_DATA "/samples/" + sample.file);
            EXPECT_EQ(run.status, 0);
            EXPECT_EQ(run.err, "");
            const Json json = run.Parsed();
            EXPECT_GT(Balances(json).size(), 4U);
            for (const auto& [point, balance] : Balances(json)) EXPECT_NEAR(balance, 0, 1e-5);
            for (const Stated& stated : sample.stated) {
                EXPECT_NEAR(Found(json, stated), stated.value, stated.tolerance) << stated.number;
            }
        }
    }
}

}  // namespace
}  // namespace idrova
