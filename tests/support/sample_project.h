// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "model/grid.h"
#include "model/project.h"

namespace idrova {

inline std::unique_ptr<Project> NewTestProject() {
    auto project = std::make_unique<Project>();
    InitialiseProject(*project);
    return project;
}

// clang-format off
/// A pump, a valve, a pipe in the grid's last column, a deleted pipe and a deleted point, a table.
constexpr std::string_view kSampleText =
    "2.6.3\r\n" "numtubo\r\n" " 4 \r\n" "npres\r\n" " 6 \r\n" "list of pipes\r\n"
    " 1             50            .0279         12.5          0             1             2             0             3             .0337 \r\n" " 1 \r\n"
    " 50            100           .0279         1234567      -.5            2             3             3            -2             .0337 \r\n" " 0 \r\n"
    " 0             0             .05           7             1E-05        -10           -10            0             0             0 \r\n" " 1 \r\n"
    " 100           2500          1.234568E+07                4             0             4             5             0             0             0 \r\n" " 1 \r\n"
    "list of pressures \r\n"
    " 101325        1 \r\n" " 0 \r\n" " 0             50 \r\n" " 1 \r\n"
    "-2.5           100 \r\n" " 1 \r\n" " 0             100 \r\n" " 1 \r\n"
    " .0001         2500 \r\n" " 1 \r\n" " 0             0 \r\n" " 1 \r\n"
    "nint\r\n" " 4 \r\n" " 1 \r\n" " 50 \r\n" " 100 \r\n" " 2500 \r\n"
    "nco\r\n" " 2 \r\n"
    " 25            1            -150.25        10            1             1             .5            3 \r\n"
    "Pump, big n. 1\r\n" " 1 \r\n"
    " 100           2             .2            0             0             0             0             0 \r\n"
    "Valve\r\n" " 0 \r\n"
    "numins\r\n" " 2 \r\n" "elenco tabe\r\n"
    " 1             303975        2             0             .0279         10            0             1.5           0 \r\n"
    " 2             0             3             101325        .0416         5             .25           0            -1 \r\n"
    "Project description\r\n" "two taps, one pump\r\n";
// clang-format on

/// The same project, typed.
inline std::unique_ptr<Project> SampleProject() {
    std::unique_ptr<Project> owner = NewTestProject();
    Project& project = *owner;
    project.ProjectDescription = "two taps, one pump";
    project.numtubo = 4;
    project.npres = 6;
    project.Pipes[1] = {0, 12.5F, .0279F, 1, 2, 639, 14261, 639, 639, 0, 3, .0337F, 1};
    project.Pipes[2] = {-.5F, 1234567, .0279F, 2, 3, 14261, 14261, 639, 917, 3, -2, .0337F, 2};
    project.Pipes[3] = {1E-5F, 7, .05F, -10, -10, -10, -10, -10, -10, 0, 0, 0, -10};
    project.Pipes[4] = {0, 4, 12345678, 4, 5, 14261, 14261, 917, 14261, 0, 0, 0, 4};
    project.FlowUnknown[2] = false;
    project.Points[1] = {101325, 639, 639, 1};
    project.Points[2] = {0, 14261, 639, 50};
    project.Points[3] = {-2.5F, 14261, 917, 100};
    project.Points[4] = {0, 14261, 917, 100};
    project.Points[5] = {.0001F, 14261, 14261, 2500};
    project.Points[6] = {0, -10, -10, 0};
    project.PressureUnknown[1] = false;
    for (const std::size_t cell : {1U, 50U, 100U, 2500U}) project.CellIsNode[cell] = true;
    project.Cells[25] = {.Name = "Pump, big n. 1",
                         .Kind = CellKind::Pump,
                         .Param1 = -150.25F,
                         .Param2 = 10,
                         .Direction = Delivery::Right,
                         .PipeAxis = Axis::Horizontal,
                         .Placed = true,
                         .MinFlow = .5F,
                         .MaxFlow = 3};
    project.Cells[100] = {.Name = "Valve", .Kind = CellKind::Loss, .Param1 = .2F};
    project.TableRows[2] = {1, 303975, 2, 0, .0279F, 10, 0, 1.5F, 0, true, false, false};
    project.TableRows[3] = {2, 0, 3, 101325, .0416F, 5, .25F, 0, -1, false, true, true};
    project.numins = 2;
    RebuildPipeCells(project);
    return owner;
}

/// The sample with `from` replaced by `to`, which must change something.
inline std::string SampleWith(std::string_view from, std::string_view to) {
    std::string text(kSampleText);
    return text.replace(text.find(from), from.size(), to);
}

}  // namespace idrova
