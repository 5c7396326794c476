// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "model/project.h"

namespace idrova {

/// What a project file holds, checked, and apart from any running project.
struct ProjectContent {
    struct Pipe {
        PipeRec record;  ///< without coordinates; points -10 when deleted
        int startCell = 0, endCell = 0;
        bool flowUnknown = true;
    };
    struct Point {
        float pressure = 0;
        int cell = 0;  ///< 0 when deleted
        bool pressureUnknown = true;
    };
    struct Component {
        int cell = 0;
        CellRec record;
    };
    struct LooseRow {
        int number = 0;  ///< up to `kLastTableRow`, below those of `rows`
        TableRowRec record;
    };
    struct PumpConstant {
        int cell = 0;
        float constant = 0;
    };

    std::vector<Pipe> pipes;
    std::vector<Point> points;
    std::vector<int> nodeCells;
    std::vector<Component> components;
    std::vector<TableRowRec> rows;  ///< from row `kFirstTableRow` on
    std::vector<LooseRow> rowsBelowGap;
    std::vector<PumpConstant> pumpConstants;
    std::optional<std::string> description;  ///< none when the file has no such section
};

/// True for a file that begins with a plain number below 2.5, as the first versions wrote it.
bool IsBeforeVersion25(std::string_view text);

/// Takes the text of a project file apart. Cells must lie on a grid of `gridSize` cells a side.
/// The failure names the line.
Result<ProjectContent> ParseProject(std::string_view text, int gridSize);

/// Fills network, table rows and description of `project`, whose tables must be empty; cell numbers
/// become positions on its grid, and points lie where their pipes end. A description that the file
/// lacks stays. Whether pipes are straight and agree on their points is not looked at.
void PutContent(const ProjectContent& content, Project& project);

}  // namespace idrova
