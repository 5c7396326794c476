// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <random>
#include <vector>

#include "editor/grid_view.h"
#include "editor/panel_edits.h"
#include "hydraulics/compute_network.h"
#include "model/project_file.h"
#include "plant.h"
#include "support/temp_folder.h"

namespace idrova {
namespace {

constexpr int kSeeds = 20;

enum class Does {
    Left,
    Right,
    Draw,
    Place,
    Arm,
    Choose,
    Delete,
    Edit,
    Compute,
    Reopen,
    Reset,
    Scroll,
    ShowData
};

/// Likelihood of each action, in a thousand.
constexpr std::array<int, 13> kWeights = {120, 150, 350, 100, 20, 20, 20, 170, 6, 10, 1, 20, 13};

/// One action of a user, at a place of the drawing; what `how` means depends on the kind.
struct Action {
    Does does = Does::Left;
    int column = 1, row = 1;
    int how = 0;
};

int ActionsPerSeed() {
    const char* const wanted = std::getenv("IDROVA_RANDOM_ACTIONS");
    return wanted == nullptr ? 250 : static_cast<int>(ReadNumber(wanted));
}

/// Most presses fall into a corner of the grid, where pipes meet each other.
std::vector<Action> MakeActions(unsigned seed, int count) {
    std::mt19937 random(seed);
    const auto upTo = [&random](unsigned n) { return static_cast<int>(random() % n); };
    std::discrete_distribution<int> kind(kWeights.begin(), kWeights.end());
    std::vector<Action> actions;
    for (int i = 0; i < count; ++i) {
        const auto does = static_cast<Does>(kind(random));
        const unsigned reach = upTo(40) == 0 ? 52 : 16;
        actions.push_back({does, 1 + upTo(reach), 1 + upTo(reach), upTo(1000)});
    }
    actions.push_back({.does = Does::Reopen});
    return actions;
}

/// A user at work; keeps count of what came of it.
class User {
  public:
    User() {
        plant.project.FluidDensity = 998.2;
        plant.project.FluidViscosity = 0.001;
        handOvers_.ClearDrawing = [this] { ClearDrawing(plant.editor); };
        handOvers_.ShowNetwork = [this] { RedrawProject(plant.project, plant.editor); };
    }

    /// The faults after the action; empty when all is well.
    std::string Take(const Action& action) {
        Act(action);
        plant.boxes.shown.clear();
        for (const std::string& fault : BrokenInvariants(plant.project, plant.editor)) {
            fault_ += fault + "; ";
        }
        Count();
        return fault_;
    }

    Plant plant;
    int mostPipes = 0, mostComponents = 0, deletedPipes = 0, settledRuns = 0, reopenings = 0;

  private:
    void Act(const Action& action) {
        Project& project = plant.project;
        Editor& editor = plant.editor;
        switch (action.does) {
            case Does::Left:
                return plant.Click(action.column, action.row);
            case Does::Right:
                return plant.Click(action.column, action.row, MouseButton::Right);
            case Does::Draw:
                return Draw(action);
            case Does::Place:
                ArmInsertion(editor, plant.boxes);
                return plant.Click(action.column, action.row);
            case Does::Arm:
                return ArmInsertion(editor, plant.boxes);
            case Does::Choose:
                ChooseComponentKind(editor, plant.lists,
                                    action.how % 2 == 0 ? CellKind::Pump : CellKind::Loss);
                return ChooseComponentAt(editor, plant.lists, action.how % 3 - 1);
            case Does::Delete:
                return DeleteSelected(project, editor, plant.boxes);
            case Does::Edit:
                return Edit(action);
            case Does::Compute:
                return Compute();
            case Does::Reopen:
                return Reopen();
            case Does::Reset:
                return ResetProject(project, handOvers_);
            case Does::Scroll:
                return ScrollDrawing(project, editor, action.how % 4, action.row % 4);
            case Does::ShowData:
                editor.DataShown = !editor.DataShown;
        }
    }

    void Draw(const Action& action) {
        const int to = 1 + action.how % 16;
        if (action.how % 2 == 0) {
            plant.Draw(action.column, action.row, to, action.row);
        } else {
            plant.Draw(action.column, action.row, action.column, to);
        }
    }

    void Edit(const Action& action) {
        static constexpr std::array texts = {"",    "100", "-5",  "2.5",   "1e38", "1e999", "-",
                                             "abc", "0",   "7e",  "nan",   " 12",  "60.1",  "1e-30",
                                             "inf", "50",  "1,5", "32768", ".5",   "53.8",  "10"};
        Project& project = plant.project;
        const std::string_view text =
            texts.at(static_cast<std::size_t>(action.how / 11) % texts.size());
        const PipeEnd end = action.row % 2 == 0 ? PipeEnd::Start : PipeEnd::End;
        PipePanel panel = ShowPipeData(project);
        switch (action.how % 11) {
            case 0:
                return ChooseFlow(project, panel, action.column % 3 == 0);
            case 1:
                return TypeKgPerHour(project, panel, text);
            case 2:
                return static_cast<void>(TypeCubicMetresPerHour(project, panel, text, plant.boxes));
            case 3:
                return TypeLength(project, panel, text);
            case 4:
                return TypeInnerSize(project, panel, text);
            case 5:
                return TypeOuterSize(project, panel, text);
            case 6:
                return ChoosePipeSize(project, panel, action.column % 14);
            case 7:
                return TypeHeight(project, panel, end, text);
            case 8:
                return ChoosePressure(project, panel, end, action.column % 3 != 0);
            case 9:
                return TypePressure(project, panel, end, text);
            default:
                return ChooseDirection(project, panel, end);
        }
    }

    /// A user who computes first completes what is missing.
    void Compute() {
        Project& project = plant.project;
        for (int i = 1; i <= project.numtubo; ++i) {
            project.Pipes[i].Length = 10;
            project.Pipes[i].Diameter = 0.1F;
        }
        project.Pipes[0] = PipeRec();
        auto work = std::make_unique<WorkNetwork>();
        CopyNetwork(project, *work);
        const Outcome outcome =
            ComputeNetwork(project, *work, false, {.boxes = plant.boxes, .seed = 1});
        if (outcome.end == RunEnd::Settled) ++settledRuns;
    }

    void Reopen() {
        const std::string before = ProjectFileText(plant.project);
        const auto path = folder_ / "plant.iv";
        RecordedBoxes yes(Answer::Yes);
        SaveProject(plant.project, path, yes);
        OpenProject(plant.project, path, yes, handOvers_);
        if (ProjectFileText(plant.project) != before) fault_ += "reopened otherwise than saved; ";
        ++reopenings;
    }

    void Count() {
        const Project& project = plant.project;
        int components = 0;
        for (int cell = 1; cell <= project.CellCount(); ++cell) {
            components += static_cast<int>(project.Cells[cell].Placed);
        }
        int deleted = 0;
        for (int i = 1; i <= project.numtubo; ++i) {
            deleted += static_cast<int>(!project.Pipes[i].IsDrawn());
        }
        mostPipes = std::max(mostPipes, project.numtubo);
        mostComponents = std::max(mostComponents, components);
        deletedPipes = std::max(deletedPipes, deleted);
    }

    HandOvers handOvers_;
    TempFolder folder_;
    std::string fault_;
};

/// The first fault that the actions lead to; empty when none.
std::string FaultOf(const std::vector<Action>& actions) {
    User user;
    for (const Action& action : actions) {
        std::string fault = user.Take(action);
        if (!fault.empty()) return fault;
    }
    return {};
}

/// Drops actions, in ever smaller runs, as long as the rest still fails.
std::vector<Action> Shortened(std::vector<Action> actions) {
    for (std::size_t run = actions.size() / 2; run > 0; run /= 2) {
        for (std::size_t at = 0; at + run <= actions.size();) {
            std::vector<Action> fewer = actions;
            const auto from = fewer.begin() + static_cast<std::ptrdiff_t>(at);
            fewer.erase(from, from + static_cast<std::ptrdiff_t>(run));
            if (FaultOf(fewer).empty()) {
                at += run;
            } else {
                actions = std::move(fewer);
            }
        }
    }
    return actions;
}

std::string ListText(const std::vector<Action>& actions) {
    std::string text;
    for (const Action& action : actions) {
        text += "{" + GeneralText(static_cast<int>(action.does)) + "," + StrText(action.column) +
                "," + StrText(action.row) + "," + StrText(action.how) + "}, ";
    }
    return text;
}

class RandomActions : public testing::TestWithParam<int> {};

TEST_P(RandomActions, KeepTheNetworkWhole) {
    const int count = ActionsPerSeed();
    std::vector<Action> actions = MakeActions(static_cast<unsigned>(GetParam()), count);
    User user;
    for (std::size_t i = 0; i < actions.size(); ++i) {
        const std::string fault = user.Take(actions[i]);
        if (fault.empty()) continue;
        actions.resize(i + 1);
        FAIL() << "seed " << GetParam() << ", action " << i + 1 << ": " << fault << "\n"
               << ListText(Shortened(actions));
    }
    EXPECT_GE(user.mostPipes, std::min(count / 8, kMaxPipes));
    EXPECT_GT(user.mostComponents, 0);
    EXPECT_GT(user.deletedPipes, 0);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomActions, testing::Range(1, kSeeds + 1));

}  // namespace
}  // namespace idrova
