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
#include "support/markup_check.h"
#include "support/networks.h"
#include "support/scripted_boxes.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

namespace fs = std::filesystem;
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
    EXPECT_EQ(std::to_string(run.status) + run.err, "0");
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
    NetworkBuilder network = TwoPipes();
    network->Pipes[2].FlowFromPoint = 3;  // counts its flow against the others
    Put("turned.iv", *network);
    const CalcResult run = Run("--json --base-pressure -1.5 turned.iv");
    EXPECT_EQ(run.status, 0);
    EXPECT_TRUE(Has("out.dat"));
    EXPECT_THAT(run.err, StartsWith("Pressure check: Some pressures are negative"));
    EXPECT_EQ(std::ranges::count(run.err, '\n'), 1) << "one message, one line";

    Json json = run.Parsed();
    EXPECT_GE(json["passes"][0], 2);
    Json pipe = json["pipes"].at(1);
    const double speed = pipe["flow_kg_s"].get<double>() / 998.2 / (.1 * .1 * 3.1415 / 4);
    EXPECT_NEAR(pipe["velocity_m_s"], speed, 1e-6 * std::abs(speed));
    EXPECT_NEAR(pipe["reynolds"], 998.2 * speed * .1 / .001002, 1);
    EXPECT_NEAR(pipe["drop_Pa"], -101325, 30);
    EXPECT_LT(speed, -1);
    for (const char* key : {"velocity_m_s", "reynolds", "drop_Pa", "flow_kg_s"}) pipe.erase(key);
    json = {json["project"],  json["outcome"], json["messages"][0]["icon"], json["pumps"], pipe,
            json["points"][0]};
    EXPECT_EQ(
        json.dump(),
        R"(["turned.iv","settled","information",[],{"from":3,"known":false,"number":2,"to":2},)"
        R"({"known":true,"number":1,"pressure_Pa":303975.0}])");
}

TEST_F(Calc, SeveralProjectsGiveALineEachAndTheWorstStatus) {
    NetworkBuilder open = TwoPipes();
    open->PressureUnknown[3] = true;
    Put("open.iv", *open);
    const CalcResult run = Run("--json plant.iv open.iv missing.iv plant.iv");
    EXPECT_EQ(run.status, 2);
    std::istringstream lines(run.out);
    std::string outcomes;
    for (std::string line; std::getline(lines, line);) {
        const Json json = Json::parse(line, nullptr, false);
        outcomes +=
            json["project"].get<std::string>() + " " + json["outcome"].get<std::string>() + ";";
    }
    EXPECT_EQ(outcomes, "plant.iv settled;open.iv refused;missing.iv refused;plant.iv settled;");
    EXPECT_EQ(Run("open.iv plant.iv").status, 1);
    EXPECT_EQ(Run("missing.iv plant.iv").out, FileBytes(folder / "out.dat")) << "its alone";
    const CalcResult reports = Run("plant.iv plant.iv");
    EXPECT_EQ(reports.status, 0);
    EXPECT_EQ(FileBytes(folder / "out.dat"), reports.out) << "one after the other";
}

TEST_F(Calc, VariantsChangeTheDrawingAndTheTable) {
    const auto pipe = [this](const std::string& options, const char* key) {
        const CalcResult run = Run("--json --seed 1 " + options + " plant.iv");
        EXPECT_EQ(run.err, "") << options;
        return run.Parsed()["pipes"].at(1)[key].get<double>();
    };
    for (const std::string mode : {"", "--mode table "}) {
        const double flow = pipe(mode, "flow_kg_s");
        // Drops go with length and, nearly, with the fifth power of the diameter.
        EXPECT_NEAR(pipe(mode + "--set pipe:1:length_m=400 --set pipe:2:length_m=400", "flow_kg_s"),
                    flow / 2, flow * .01);
        EXPECT_NEAR(pipe(mode + "--set pipe:2:diameter_m=.2", "drop_Pa"), 202650 / 32., 1000);
        EXPECT_NEAR(pipe(mode + "--set point:1:pressure_Pa=911925", "flow_kg_s"), 2 * flow,
                    flow * .03);
        const CalcResult given = Run(mode + "--json --set pipe:1:flow_kg_s=2 plant.iv");
        EXPECT_EQ(given.status, 1) << "one value too many";
        EXPECT_EQ(given.Parsed()["set"].dump(), R"({"pipe:1:flow_kg_s":2.0})");
    }
}

TEST_F(Calc, ExportsAreWrittenBesideTheReport) {
    NetworkBuilder network = TwoPipes();
    network->ProjectDescription = "a & <b>";
    Put("pl<a>nt.iv", *network);
    const CalcResult run = Run("--csv tables --html r.html --svg d.svg --inp n.inp 'pl<a>nt.iv'");
    EXPECT_EQ(std::to_string(run.status) + run.err, "0");
    EXPECT_THAT(FileBytes(folder / "tables/pl<a>nt-pipes.csv"), StartsWith("pipe,from,to,flow"));
    EXPECT_TRUE(Has("tables/pl<a>nt-points.csv") && Has("tables/pl<a>nt-components.csv"));
    const std::string drawing = FileBytes(folder / "d.svg");
    EXPECT_EQ(MarkupFault(drawing) + MarkupFault(FileBytes(folder / "r.html")), "");
    EXPECT_THAT(drawing, HasSubstr("<title>pipe 2</title>"));
    EXPECT_THAT(drawing, HasSubstr(">P1=3.</text>"));
    EXPECT_THAT(FileBytes(folder / "r.html"), HasSubstr(drawing));
    EXPECT_THAT(FileBytes(folder / "n.inp"), HasSubstr(" pipe2 P2 P3 100 100 0.1 0 Open"));
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
    NetworkBuilder network = TwoPipes();
    network->Pipes[2].StartPoint = network->Pipes[2].FlowFromPoint =
        static_cast<std::int16_t>(network.AddPoint(10, 5));
    CellRec& pump = network.AddComponent(2, CellKind::Pump);
    pump.Name = "Booster";
    pump.Direction = Delivery::Down;
    pump.Param1 = -3000;
    Put("pumped.iv", *network);
    const CalcResult run = Run("--json --save solved.iv --svg pump.svg pumped.iv");
    ASSERT_EQ(run.status, 0) << run.err;
    const Json json = run.Parsed();
    const double flow = json["pumps"].at(0)["flow_kg_s"];
    const double lift = json["points"].at(3)["pressure_Pa"].get<double>() -
                        json["points"].at(1)["pressure_Pa"].get<double>();
    EXPECT_NEAR(lift, 400000 - 3000 * flow * flow, 40);
    EXPECT_THAT(json["pumps"].dump(), HasSubstr(R"("name":"Booster")"));
    EXPECT_THAT(FileBytes(folder / "solved.iv"),
                HasSubstr("pump constants\r\n 1 \r\n 210           400000 \r\n"));
    EXPECT_THAT(FileBytes(folder / "pump.svg"), HasSubstr("rotate(90) scale(139)"));
    fs::remove(folder / "pompe.dat");
    EXPECT_EQ(Run("--json solved.iv").Parsed()["outcome"], "settled");
    EXPECT_FALSE(Has("pompe.dat")) << "nothing is created";

    const std::string solved = FileBytes(folder / "solved.iv");
    const CalcResult kept = Run("--save solved.iv plant.iv");
    EXPECT_EQ(kept.status, 2);
    EXPECT_EQ(kept.err, "Save file: solved.iv exists; --force replaces it\n");
    EXPECT_EQ(FileBytes(folder / "solved.iv"), solved);
    EXPECT_EQ(Run("--save solved.iv --force plant.iv").status, 0);
    EXPECT_NE(FileBytes(folder / "solved.iv"), solved);
}

TEST_F(Calc, StatusAndMessagesTellWhatBecameOfTheRun) {
    NetworkBuilder network = TwoPipes();
    network->PressureUnknown[3] = true;
    network->TableRows[3].StartPoint = 5;
    Put("open.iv", *network);
    network.SetFlow(2, 50);
    Put("thirsty.iv", *network);
    network = TwoPipes();
    network.SetFlow(1, 0);
    network.SetPressure(2, 3 * kBar);
    const int from = network.AddPoint(20, 20);
    network.AddPipe(from, network.AddPoint(30, 20));
    Put("singular.iv", *network);
    Put("empty.iv", *NetworkBuilder());
    const std::tuple<std::string, int, const char*, const char*> cases[] = {
        {"open.iv", 1, "refused",
         "Unsolving system:  5 Unknowns >  3 Equations + 1 Known terms Set"},
        {"open.iv", 1, "refused",
         "\nPoint 3 is an open end: give its pressure or the flow of pipe 2\n"},
        {"--mode table open.iv", 1, "refused",
         "Coherence check: The point numbers must run from 1 w"},
        {"--equation compressible plant.iv", 1, "refused",
         "The selected fluid is uncompressible\n"},
        {"--section rectangular plant.iv", 1, "refused", "Check: Pipe  1 with zero diameter\n"},
        {"--data nowhere plant.iv", 1, "refused", "Fluid: Select a fluid\n"},
        {"empty.iv", 1, "empty", "Nothing to compute\n"},
        {"singular.iv", 3, "singular", "Pipe 1 has its flow and both end pressures given"},
        {"--fluid 3 --equation compressible thirsty.iv", 3, "unsettled", "Not settled"},
    };
    for (const auto& [arguments, status, outcome, message] : cases) {
        const CalcResult run = Run("--json " + arguments);
        EXPECT_EQ(run.status, status) << arguments;
        EXPECT_EQ(run.Parsed()["outcome"], outcome) << arguments;
        EXPECT_THAT(run.err, HasSubstr(message));
        EXPECT_EQ(Has("out.dat"), status == 3);
        EXPECT_EQ(status == 1 ? Run(arguments).out : "", "");
    }
    EXPECT_FALSE(Has("nowhere"));
    EXPECT_EQ(Run("singular.iv open.iv plant.iv").status, 1) << "not computed is worse";
}

TEST_F(Calc, WrongUseAndUnusableFilesEndWithTwoAndChangeNothing) {
    PutFile(folder / "letters.iv", "2.6.3\r\nnumtubo\r\nmany\r\n");
    PutFile(folder / "old.iv", "2.4\r\n");
    for (const char* name : {"blocked/out.dat", "broken/fluidi.dat", "nopumps/pompe.dat"}) {
        fs::create_directories(folder / name);
    }
    const std::string project = FileBytes(folder / "plant.iv");
    std::istringstream wrong(
        R"(missing.iv;letters.iv;old.iv;blocked;--unknown plant.iv;
--mode single plant.iv;--roughness 1mm plant.iv;--roughness -1 plant.iv;--seed x plant.iv;
--temperature -274 plant.iv;--density 1 plant.iv;--density nan --viscosity 1 plant.iv;
--viscosity 1 plant.iv;--force plant.iv;--fluid 4 plant.iv;--fluid Wine plant.iv;
--fluid 1 --density 1 --viscosity 1 plant.iv;--data broken plant.iv;
--data nopumps --density 1 --viscosity 1e-5 plant.iv;
--data blocked --density 1 --viscosity 1e-5 plant.iv;--save nowhere/x.iv plant.iv;
--set pipe:3:length_m=1 plant.iv;--set pipe:0:length_m=1 plant.iv;--mode table --set point:4:pressure_Pa=1 plant.iv;
--set pipe:1:length_m=0 plant.iv;--set pipe:1:length_m=x plant.iv;--set pipe:1:width_m=1 plant.iv;
--set point:1:length_m=1 plant.iv;--set pipe:x:length_m=1 plant.iv;--set pipe:1:length_m plant.iv;
--html nowhere/r.html plant.iv;--csv plant.iv/x plant.iv;--svg . plant.iv;
--mode table --svg d.svg plant.iv;--inp plant.iv plant.iv;--csv t plant.iv plant.iv;--html r.html plant.iv plant.iv;
--save s.iv plant.iv plant.iv;--fluid 3 --equation compressible --inp n.inp plant.iv;)");
    for (std::string arguments; std::getline(wrong >> std::ws, arguments, ';');) {
        const CalcResult run = Run(arguments);
        EXPECT_EQ(run.status, 2) << arguments;
        EXPECT_NE(run.err, "") << arguments;
        for (const char* file : {"r.html", "d.svg", "s.iv", "n.inp", "x.iv"}) {
            EXPECT_FALSE(Has(file)) << arguments;
        }
    }
    EXPECT_EQ(FileBytes(folder / "plant.iv"), project);
    EXPECT_EQ(Run("").status, 2);
    EXPECT_EQ(Run("--help").status, 0);
    EXPECT_EQ(Run("--version").out, "idrova-calc 2.6.3\n");
}

/// What the README of the samples states of a project.
struct Sample {
    const char* file;
    const char* options;
    std::vector<std::tuple<const char*, double, double>> stated;  ///< Pa and kg/h, tolerance
};

const std::vector<Sample> kSamples = {
    {"booster-station.iv",
     "",
     {{"pump 967", 17773.5, .2}, {"pipe 18", -35527.2, .2}, {"point 27", 127369, 60}}},
    {"compressed-air.iv",
     "",
     {{"pipe 7", -22.48, .04}, {"point 8", 685548, 5}, {"point 15", 681162.5, 5}}},
    {"heating-circuit.iv",
     "",
     {{"pump 406", 3950, .2}, {"pipe 7", 1358.3, .2}, {"pipe 11", 1283, .2}}},
    {"irrigation-table.iv",
     "--mode table",
     {{"pipe 36", 13346.1, .2}, {"point 13", 370056, 20}, {"point 35", 367491.5, 20}}},
    {"ring-main.iv",
     "",
     {{"pipe 2", 27119.9, .2}, {"pipe 4", 3061.4, .2}, {"point 5", 382995, 20}}},
};

/// Flows in kg/h and pressures in Pa by what they are of.
std::map<std::string, double> ValuesOf(const Json& json) {
    std::map<std::string, double> values;
    for (const auto& [list, name, number, quantity, factor] :
         {std::tuple("pipes", "pipe ", "number", "flow_kg_s", kSecondsPerHour),
          std::tuple("points", "point ", "number", "pressure_Pa", 1.0),
          std::tuple("pumps", "pump ", "cell", "flow_kg_s", kSecondsPerHour)}) {
        for (const Json& entry : json[list]) {
            values[name + entry[number].dump()] = entry[quantity].get<double>() * factor;
        }
    }
    return values;
}

TEST_F(Calc, SettingsBesideTheProjectAreTakenUnlessTold) {
    const std::string air =
        "--json --no-report --data '" IDROVA_DATA "' " IDROVA_DATA "/samples/compressed-air.iv ";
    const auto dropOf = [&](const std::string& options) {
        return Run(air + options).Parsed()["pipes"][0]["drop_Pa"].get<double>();
    };
    const double drop = dropOf("");
    EXPECT_NEAR(dropOf("--no-settings --fluid Air --equation compressible --temperature 20"), drop,
                1e-3 * drop);
    EXPECT_GT(std::abs(dropOf("--no-settings") - drop), .1 * drop);
    EXPECT_GT(dropOf("--temperature 80"), 1.1 * drop);
    EXPECT_EQ(Run("--save b.iv --temperature 5 plant.iv").status, 0);
    EXPECT_THAT(FileBytes(folder / "b.settings.json"), HasSubstr("\"temperature_C\": 5.0,"));
    PutFile(folder / "b.settings.json", "{");
    EXPECT_EQ(Run("b.iv").status, 2);
    EXPECT_EQ(Run("--no-settings b.iv").status, 0);
}

TEST_F(Calc, SamplesAreWhatAUserCouldDrawAndSettleToWhatTheirReadmeStates) {
    for (const Sample& sample : kSamples) {
        SCOPED_TRACE(sample.file);
        const std::string path = IDROVA_DATA "/samples/" + std::string(sample.file);
        const auto project = std::make_unique<Project>();
        InitialiseProject(*project);
        ScriptedBoxes boxes;
        Editor editor;
        ASSERT_EQ(OpenProject(*project, path, boxes), OpenOutcome::Opened);
        RedrawProject(*project, editor);
        EXPECT_EQ(BrokenInvariants(*project, editor), std::vector<std::string>());
        EXPECT_NE(project->ProjectDescription, "");
        const CalcResult run = Run("--json --no-report --data '" IDROVA_DATA "' " +
                                   std::string(sample.options) + " " + path);
        EXPECT_EQ(std::to_string(run.status) + run.err, "0");
        auto values = ValuesOf(run.Parsed());
        for (const auto& [what, value, tolerance] : sample.stated) {
            EXPECT_NEAR(values[what], value, tolerance) << what;
        }
    }
}

}  // namespace
}  // namespace idrova
