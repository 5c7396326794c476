// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "editor/editor_state.h"
#include "model/project.h"

namespace idrova {

/// Records of a table by their number, ascending.
template <typename Record>
using Listed = std::vector<std::pair<int, Record>>;

/// What of a drawing is given and not computed: flows, pressures and results of a run stand at 0.
struct Plan {
    struct Pipe {
        PipeRec record;
        bool unknown = true;
        bool operator==(const Pipe&) const = default;
    };
    struct Point {
        PointRec record;
        bool unknown = true;
        bool operator==(const Point&) const = default;
    };
    struct Selection {
        int pipe = 0;
        std::vector<int> others;  ///< selected with the pipe
        int component = 0;        ///< its cell
        bool operator==(const Selection&) const = default;
    };

    Listed<Pipe> pipes;          ///< deleted slots too
    Listed<Point> points;        ///< deleted slots too
    Listed<CellRec> components;  ///< cells whose component was deleted too
    Listed<bool> nodes;          ///< the marked cells
    Selection selection;
};

Plan PlanOf(const Project& project, const Editor& editor);

/// A record as it was and as it became; nothing stands for a number that is not in use.
template <typename Record>
struct Change {
    int number = 0;
    std::optional<Record> before, after;
};

/// What one action changed, and what was selected before and after it.
struct EditStep {
    std::vector<Change<Plan::Pipe>> pipes;
    std::vector<Change<Plan::Point>> points;
    std::vector<Change<CellRec>> components;
    std::vector<Change<bool>> nodes;
    Plan::Selection before, after;

    bool IsEmpty() const {
        return pipes.empty() && points.empty() && components.empty() && nodes.empty();
    }
};

EditStep StepBetween(const Plan& before, const Plan& after);

/// Puts the records of the step back to what they were, or again to what they became, and selects
/// what was selected then. What a run has found stays where its pipe, point or component does, and
/// is 0 elsewhere. The project must be what the step left, or started from.
void TakeBack(const EditStep& step, Project& project, Editor& editor);
void DoAgain(const EditStep& step, Project& project, Editor& editor);

}  // namespace idrova
