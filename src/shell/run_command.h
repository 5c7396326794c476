// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "base/message_boxes.h"
#include "base/result.h"
#include "hydraulics/compute_network.h"
#include "hydraulics/single_pipe.h"
#include "hydraulics/work_network.h"
#include "model/project.h"
#include "results/run_record.h"
#include "table/table_texts.h"

namespace idrova {

/// What a run needs of the program that asks for it.
struct RunHost {
    MessageBoxes& boxes;
    /// Called once, with the settings and the results of the run, before the base pressure is added
    /// to them. A failure is told in a box.
    std::function<Status(const Settings&, const WorkNetwork&)> writeReport;
    /// After every pass; false stops the run.
    std::function<bool(const RunProgress&)> showProgress = [](const RunProgress&) { return true; };
    /// Called once, after the report and before any box of a run.
    std::function<void()> endProgress = [] {};
    std::optional<std::uint32_t> seed{};  ///< of the start values; from the clock when absent
};

/// Computes the table or the drawing, as the mode says: refusals told, the drawing's results stored
/// in the project, the report written, pumps and pressures checked. After a refusal the notes name
/// every place where it can be mended.
RunRecord RunNetwork(Project& project, const TableTexts& texts, WorkNetwork& work,
                     const RunHost& host);

/// Puts the results of a run into the drawing that it was made of; nothing where that has changed.
void RestoreResults(const RunRecord& record, Project& project);

/// True when the drawing or the table has pipes and is not as it was when `last` was computed; null
/// for never. The single pipe is always computed at once.
bool IsToCompute(const Project& project, const RunRecord* last);

struct SinglePipeResult {
    RunRecord record;
    std::optional<BoxText> box;  ///< the unknown's new text, when there is one
};

/// Computes the unknown of one round pipe, unless it is incomplete. Takes the settings of the
/// project, which keeps its data and results. Tells nothing: that is `TellRun`, once typing pauses.
SinglePipeResult RunSinglePipe(const SinglePipe& pipe, const Project& project, WorkNetwork& work);

/// What a run leaves to tell: writes the report when there are results, takes the progress away,
/// says what was refused or went wrong.
void TellRun(const RunRecord& record, const RunHost& host);

/// A `writeReport` that keeps the report in `report` and puts it into the results file of `folder`.
/// All three must outlive it.
std::function<Status(const Settings&, const WorkNetwork&)> ReportWriter(
    const Project& project, const std::filesystem::path& folder, std::string& report);

}  // namespace idrova
