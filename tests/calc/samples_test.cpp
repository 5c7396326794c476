// SPDX-License-Identifier: GPL-3.0-or-later
#include <map>

#include "calc_process.h"
#include "editor/invariants.h"
#include "support/scripted_boxes.h"

namespace idrova {
namespace {

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
     {{"pumps", 967, 17773.3, 4}, {"pipes", 18, -35526.9, 7}, {"points", 27, 127369, 60}}},
    {"compressed-air.iv",
     "--fluid Air --equation compressible --temperature 20",
     {{"pipes", 7, -22.48, .04}, {"points", 8, 685548, 5}, {"points", 15, 681162.5, 5}}},
    {"heating-circuit.iv",
     "--fluid 'Water 60 °C'",
     {{"pumps", 406, 3950.1, 4}, {"pipes", 7, 1358.3, 4}, {"pipes", 11, 1283, 4}}},
    {"irrigation-table.iv",
     "--mode table",
     {{"pipes", 36, 13346.1, 7}, {"points", 13, 370056, 20}, {"points", 35, 367491.5, 20}}},
    {"ring-main.iv",
     "",
     {{"pipes", 2, 27120.3, 7}, {"pipes", 4, 3061.3, 7}, {"points", 5, 382995, 20}}},
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

class Samples : public CalcProcess {};

TEST_F(Samples, SettleToWhatTheReadmeStates) {
    for (const Sample& sample : kSamples) {
        for (const std::string seed : {"1", "2", "3"}) {
            SCOPED_TRACE(sample.file + " " + seed);
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

TEST_F(Samples, AreWhatAUserCouldDraw) {
    for (const Sample& sample : kSamples) {
        auto project = std::make_unique<Project>();
        InitialiseProject(*project);
        RecordedBoxes boxes;
        Editor editor;
        ASSERT_EQ(OpenProject(*project, IDROVA_DATA "/samples/" + sample.file, boxes),
                  OpenOutcome::Opened);
        RedrawProject(*project, editor);
        EXPECT_EQ(BrokenInvariants(*project, editor), std::vector<std::string>());
        EXPECT_NE(project->ProjectDescription, "");
    }
}

}  // namespace
}  // namespace idrova
