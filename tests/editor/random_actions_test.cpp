// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>
#include <deque>
#include <map>
#include <random>
#include <set>

#include "given.h"
#include "plant.h"
#include "projectfile/project_file.h"
#include "shell/run_command.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

constexpr unsigned kSeeds = 20;

/// More of them when the environment says so.
int ActionsPerSeed() {
    const char* const wanted = std::getenv("IDROVA_RANDOM_ACTIONS");
    return wanted == nullptr ? 1000 : static_cast<int>(ReadNumber(wanted));
}

/// A user who does anything: the steps of a plant's script, and a few more.
class RandomUser {
  public:
    explicit RandomUser(unsigned seed) : random_(seed) {
        plant.project.settings.FluidDensity = 998.2;
        plant.project.settings.FluidViscosity = 1e-3;
    }

    /// One action; returns its script.
    std::string Act() {
        // Most presses fall into a corner of the grid, where pipes meet each other.
        const int reach = UpTo(40) == 0 ? 52 : 16;
        const std::string column = GeneralText(1 + UpTo(reach));
        const std::string row = GeneralText(1 + UpTo(reach));
        const std::string to = GeneralText(1 + UpTo(16));
        const std::string at = column + "," + row;
        const std::pair<int, std::string> actions[] = {
            {120, "L" + at},
            {150, "R" + at},
            {60, "C" + at},
            {175, "L" + at + " L" + to + "," + row},
            {175, "L" + at + " L" + column + "," + to},
            {60, "pump L" + at},
            {60, "loss L" + at},
            {10, "pump"},
            {10, "loss"},
            {20, "delete"},
            {175, "again " + RandomEdit()},
            {15, "labels"},
            {20, "S" + GeneralText(UpTo(4)) + "," + GeneralText(UpTo(4))},
            {8, "reopen"},
            {1, "compute"},
            {1, "reset"},
            {20, "undo"},
        };
        int likelihood = UpTo(1080);
        const auto* action = std::begin(actions);
        while ((likelihood -= action->first) >= 0) ++action;
        if (action->second == "undo") return UndoAndRedo();
        if (action->second == "reopen") {
            Reopen();
        } else if (action->second == "compute") {
            Compute();
        } else if (action->second == "reset") {
            ResetProject(plant.project);
            RedrawProject(plant.project, plant.editor);
            StartAnew();
        } else {
            std::istringstream steps(action->second);
            for (std::string step; steps >> step;) Do(step);
        }
        return action->second + " ";
    }

    Plant plant;
    std::set<RunEnd> runs;  ///< how they ended

  private:
    int UpTo(std::size_t count) {
        return std::uniform_int_distribution<int>(0, static_cast<int>(count) - 1)(random_);
    }

    std::string RandomEdit() {
        static constexpr const char* texts[] = {
            "",    "100",  "-5",    "2.5", "1e38", "1e999", "-", "abc",   "0",  "7e",  "given",
            "nan", "60.1", "1e-30", "inf", "50",   "1,5",   "7", "32768", ".5", "53.8"};
        const auto& edit = *std::next(plant.edits.begin(), UpTo(plant.edits.size()));
        return edit.first + "=" + texts[UpTo(std::size(texts))];
    }

    void Do(const std::string& step) {
        plant.Do(step + " left");
        Given given = GivenOf(plant.project);
        if (given == copies_.back()) return;
        copies_.push_back(std::move(given));
        if (copies_.size() > EditHistory::kMaxSteps + 1) copies_.pop_front();
    }

    void StartAnew() {
        plant.history.StartAnew(plant.project, plant.editor);
        copies_ = {GivenOf(plant.project)};
    }

    /// Some steps back and a part of them again: each time what it was then.
    std::string UndoAndRedo() {
        const int back = UpTo(std::min<std::size_t>(copies_.size(), 25));
        const int again = UpTo(back + 1);
        std::size_t at = copies_.size() - 1;
        for (int i = 0; i < back + again; ++i) {
            plant.Do(i < back ? "undo" : "redo");
            at += i < back ? -1 : 1;
            EXPECT_TRUE(GivenOf(plant.project) == copies_[at]) << i << " of " << back;
            EXPECT_THAT(BrokenInvariants(plant.project, plant.editor), testing::IsEmpty());
        }
        copies_.resize(at + 1);
        return "undo*" + GeneralText(back) + " redo*" + GeneralText(again) + " ";
    }

    /// First gives every pipe its size, and the pressures where the plant ends.
    void Compute() {
        Project& project = plant.project;
        std::map<int, int> pipesAt;
        for (int i = 1; i <= project.numtubo; ++i) {
            PipeRec& pipe = project.Pipes[i];
            pipe.Length = pipe.Diameter = 1;
            project.FlowUnknown[i] = true;
            for (const int point : {pipe.StartPoint, pipe.EndPoint}) ++pipesAt[point];
        }
        for (int i = 1; i <= project.npres; ++i) {
            const bool cut = project.Cells[std::max<int>(project.Points[i].Cell, 0)].IsComponent();
            project.PressureUnknown[i] = pipesAt[i] != 1 || cut;
        }
        const auto work = std::make_unique<WorkNetwork>();
        const auto noReport = [](const Settings&, const WorkNetwork&) { return Status(Done{}); };
        const RunHost host{.boxes = plant.boxes, .writeReport = noReport, .seed = 1};
        runs.insert(RunNetwork(project, {}, *work, host).outcome.end);
        Do("R50,50");
    }

    void Reopen() {
        const std::string before = ProjectFileText(plant.project);
        RecordedBoxes yes(Answer::Yes);
        SaveProject(plant.project, folder_ / "plant.iv", yes);
        OpenProject(plant.project, folder_ / "plant.iv", yes);
        RedrawProject(plant.project, plant.editor);
        EXPECT_EQ(ProjectFileText(plant.project), before);
        StartAnew();
    }

    std::mt19937 random_;
    TempFolder folder_;
    std::deque<Given> copies_{GivenOf(plant.project)};  ///< of the states that can be undone to
};

TEST(RandomActions, KeepTheNetworkWhole) {
    int mostPipes = 0;
    long deletedPipes = 0;
    std::set<CellKind> kinds;
    std::set<RunEnd> runs;
    for (unsigned seed = 1; seed <= kSeeds; ++seed) {
        RandomUser user(seed);
        const Project& project = user.plant.project;
        std::string script;
        for (int i = 0; i < ActionsPerSeed(); ++i) {
            script += user.Act();
            ASSERT_THAT(BrokenInvariants(project, user.plant.editor), testing::IsEmpty()) << script;
            ASSERT_FALSE(HasFailure()) << script;
        }
        mostPipes = std::max(mostPipes, project.numtubo);
        for (const CellRec& cell : project.Cells) kinds.insert(cell.Kind);
        runs.merge(user.runs);
        deletedPipes += std::ranges::count(project.Pipes, kDeleted, &PipeRec::X1);
    }
    EXPECT_GT(mostPipes, 100);
    EXPECT_GT(deletedPipes, 0);
    EXPECT_EQ(kinds.size(), 4U);
    EXPECT_TRUE(runs.contains(RunEnd::Settled));
}

}  // namespace
}  // namespace idrova
