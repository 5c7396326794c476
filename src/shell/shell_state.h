// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

#include "model/project.h"

namespace idrova {

/// What the main window remembers beside the project.
struct ShellState {
    bool HintsShown = true;  ///< the hint window is open
    bool ToolBarShown = true;
    bool ComputesAtOnce = false;            ///< whenever the plant has changed and typing pauses
    std::string_view roughnessItem = "t1";  ///< menu item of the roughness last chosen
    std::string_view labelsItem = "LabelsNone";  ///< menu item of the labels that the drawing shows
    std::string_view coloursItem = "ColoursNone";  ///< of its colours
};

/// What a working mode shows and allows.
struct ModeView {
    std::string_view window;    ///< the one mode window that is open
    bool drawingTools = false;  ///< the panel's four groups, "Delete ..." and "Show/hidden data"
    bool calculate = false;     ///< the panel's "Calculate by graphic"
};

ModeView ViewOf(WorkMode mode);

/// The four lines of the hint window in a mode without a drawing: what to do, what it does, twice.
std::array<std::string_view, 4> ModeHints(WorkMode mode);

/// Switches the mode. The network and the table stay as they are; only graphic mode has hints.
void EnterMode(WorkMode mode, Project& project, ShellState& shell);

}  // namespace idrova
