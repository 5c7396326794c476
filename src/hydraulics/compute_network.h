// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "hydraulics/note.h"
#include "hydraulics/refusal.h"
#include "hydraulics/work_network.h"
#include "model/settings.h"

namespace idrova {

enum class RunEnd {
    Refused,    ///< a check refused the network: nothing was stored
    Empty,      ///< nothing to compute: nothing was stored
    Stopped,    ///< the progress call has stopped the run: nothing was stored
    Settled,    ///< the results are a solution
    Unsettled,  ///< the results are the last pass, not a solution
    Singular,   ///< the equations have no single solution: the results are the last pass, if finite
    NotFinite,  ///< no finite solution: nothing was stored
};

/// What became of a run.
struct Outcome {
    RunEnd end = RunEnd::Refused;
    bool stored = false;               ///< the working network holds results
    std::array<int, 2> passes{};       ///< of the first and of the closing stage; 0 when not run
    double residual = 0;               ///< summed relative residual of the last pass
    double worstResidual = 0;          ///< the largest residual of an unsettled pipe
    int worstPipe = 0;                 ///< its number; 0 when every pipe has settled
    std::optional<Refusal> refusal{};  ///< of a run that the engine has refused
    std::vector<Note> notes{};         ///< what the user should know, remarks last
    double seconds = 0;                ///< that the run took
};

/// How many notes a user has to look at: remarks do not count.
int WarningCount(const Outcome& outcome);

/// The outcome in a few words, for the status bar.
std::string OutcomeLine(const Outcome& outcome);

/// How long it took: "12 + 3 passes, 1.4 ms"; empty when nothing was solved.
std::string EffortText(const Outcome& outcome);

/// The two bars of the progress window, each 0 .. 100.
struct RunProgress {
    double closeness = 0;
    double passes = 0;
};

/// What a run takes beside the settings and the network.
struct RunOptions {
    std::optional<std::uint32_t> seed{};  ///< of the start values; from the clock when absent
    /// Called after every pass; false stops the run, which stores nothing then.
    std::function<bool(const RunProgress&)> progress = [](const RunProgress&) { return true; };
    bool pipeDataChecked = true;  ///< false: a pipe may have zero length or diameter
};

/// One whole run: checks, solution, results into the working network. Flows come out in kg/s signed
/// from each pipe's `FlowFromPoint`, pressures in Pa without the base pressure, and each
/// component's record has the flow of its first pipe piece as its `Result`.
Outcome ComputeNetwork(const Settings& settings, WorkNetwork& work, const RunOptions& options);

}  // namespace idrova
