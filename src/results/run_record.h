// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <vector>

#include "hydraulics/compute_network.h"
#include "hydraulics/work_network.h"
#include "model/project.h"
#include "results/report.h"

namespace idrova {

/// All that the result of a run depends on: given values and which they are, ends, sizes, heights,
/// components, fluid, roughness, section, equation and, for a gas, temperature and base pressure.
/// What the result does not depend on stands at its start value.
struct RunInputs {
    struct Pipe {
        int number = 0;
        PipeRec record;
        bool unknown = true;
        bool operator==(const Pipe&) const = default;
    };
    struct Point {
        int number = 0;
        int cell = 0;
        float pressure = 0;
        bool unknown = true;
        bool operator==(const Point&) const = default;
    };
    struct Component {
        int cell = 0;
        CellRec record;
        bool operator==(const Component&) const = default;
    };

    Settings settings;
    std::vector<Pipe> pipes;
    std::vector<Point> points;
    std::vector<Component> components;
    std::vector<TableRowRec> rows;
    bool operator==(const RunInputs&) const = default;
};

/// Of the drawing, of the table or of the single pipe, as the mode says; of the single pipe the
/// settings alone.
RunInputs InputsOf(const Project& project);

/// A run and what it was made of. Its results are out of date when the inputs differ by now.
struct RunRecord {
    RunInputs inputs;
    Outcome outcome;
    Settings settings;                     ///< with which it was computed
    std::optional<WorkNetwork> results{};  ///< without the base pressure; nothing when not stored
    ReportTime time{};
};

/// Takes the reference end of every pipe from the drawing, the sign of its flow with it, after
/// these were turned round there.
void TurnFlowsWith(const Project& project, RunRecord& record);

}  // namespace idrova
