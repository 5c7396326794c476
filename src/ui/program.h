// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "base/message_boxes.h"
#include "editor/editor_state.h"
#include "editor/history.h"
#include "hydraulics/work_network.h"
#include "model/project.h"
#include "physdata/component_lists.h"
#include "physdata/fluids.h"
#include "physdata/settings_file.h"
#include "results/run_record.h"
#include "shell/shell_state.h"
#include "shell/start_up.h"
#include "table/table_columns.h"
#include "table/table_texts.h"
#include "ui/table/table_model.h"

namespace idrova {

/// All that the windows work on: the one project, the one working copy, and what the program
/// remembers beside them. Large: keep it on the heap. Lives longer than every window.
struct Program {
    Program(std::filesystem::path workingFolder, MessageBoxes& messageBoxes)
        : folder(std::move(workingFolder)), boxes(messageBoxes) {}

    const std::filesystem::path folder;  ///< databases, results and configuration live here
    MessageBoxes& boxes;
    ShippedFiles shipped;              ///< offered by the file window and by "Help"
    std::filesystem::path lastFolder;  ///< where the project file window starts

    Project project;
    std::string titleName = kNewProject;  ///< of the project, as the main window's title shows it
    /// The settings beside the open project, until the user takes or leaves them.
    std::optional<Result<StoredSettings>> offered;
    Limits limits;               ///< that results are held against
    StoredSettings whenOffered;  ///< the settings in use at that time
    WorkNetwork work;
    TableTexts table;
    TableModel tableModel{project, table};  ///< holds the edits that can be undone
    TablePlace tablePlace;
    FluidDb fluids;
    ComponentLists components;
    Editor editor;
    EditHistory history;  ///< of the drawing
    ShellState shell;
    std::map<WorkMode, RunRecord> records;  ///< of the last computation in each mode
    std::string report;                     ///< of the last computation that wrote one
    bool reportStored = true;               ///< it stands in the results file, if there is one

    /// Brings every window, check mark, panel and the status bar up to date with what stands here.
    /// Called once after every change, when all is whole.
    std::function<void()> changed = [] {};
    /// Moves the keyboard between the child windows and the command panel, there to its first
    /// control or, backwards, to its last.
    std::function<void(bool backwards)> switchFocus = [](bool) {};
};

/// The last computation in the working mode; null when there was none.
const RunRecord* RecordOf(const Program& program);

/// True when the working mode has been computed, and what it was computed from has changed since.
bool ResultsAreOld(const Program& program);

/// True when computed values that the project shows are not of a run of the plant as it is: it has
/// changed since, or the last run found none.
bool ShowsOldResults(const Program& program);

/// The settings that are saved with the project.
StoredSettings PresentSettings(const Program& program);

/// Keeps the report of a run as the last one, and puts it into the results file.
std::function<Status(const Settings&, const WorkNetwork&)> StoredReport(Program& program);

/// Reads the pump and loss databases again, and finds the chosen component in them.
void RereadComponents(Program& program);

}  // namespace idrova
