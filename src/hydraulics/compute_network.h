// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/message_boxes.h"
#include "hydraulics/work_network.h"
#include "model/project.h"

namespace idrova {

enum class RunEnd {
    Refused,    ///< a check stopped the run with a message: nothing was stored
    Empty,      ///< nothing to compute: nothing was stored, no message
    Settled,    ///< the results are a solution
    Unsettled,  ///< the results are the last pass, not a solution
    Singular,   ///< the equations have no single solution: the results are the last pass
    NotFinite,  ///< no finite solution: nothing was stored
};

/// What became of a run.
struct Outcome {
    RunEnd end = RunEnd::Refused;
    std::array<int, 2> passes{};     ///< of the first and of the closing stage; 0 when not run
    double residual = 0;             ///< summed relative residual of the last pass
    double worstResidual = 0;        ///< the largest residual of an unsettled pipe
    int worstPipe = 0;               ///< its number; 0 when every pipe has settled
    std::vector<std::string> notes;  ///< what the user should know, in plain words
};

/// The outcome in one line, for the status bar.
std::string OutcomeLine(const Outcome& outcome);

/// The two bars of the progress window, each 0 .. 100.
struct RunProgress {
    double closeness = 0;
    double passes = 0;
};

/// What a run needs from outside.
struct RunServices {
    MessageBoxes& boxes;
    std::function<void()> writeReport = [] {};  ///< called once, with the results stored
    std::function<void(const RunProgress&)> showProgress = [](const RunProgress&) {};
    std::optional<std::uint32_t> seed;  ///< of the start values; from the clock when absent
};

/// One whole run on the working copy: checks, iteration, results into the copy and (in graphic
/// mode of a network run) into the project, report, pump and pressure checks. Flows come out in
/// kg/s signed from each pipe's `FlowFromPoint`, pressures in Pa without the base pressure for the
/// report; a network run then adds `BasePressure` to the working pressures.
Outcome ComputeNetwork(Project& project, WorkNetwork& work, bool singlePipe,
                       const RunServices& services);

}  // namespace idrova
