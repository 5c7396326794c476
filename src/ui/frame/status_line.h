// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "base/message_boxes.h"
#include "hydraulics/compute_network.h"
#include "model/settings.h"
#include "shell/outcome_notes.h"

class QLabel;
class QStatusBar;
class QToolButton;

namespace idrova {

/// The permanent part of the status bar: mode, fluid, and what became of the last computation.
/// A click on the outcome shows all its notes.
class StatusLine {
  public:
    StatusLine(QStatusBar& bar, MessageBoxes& boxes);
    StatusLine(const StatusLine&) = delete;
    StatusLine& operator=(const StatusLine&) = delete;

    void ShowSettings(const Settings& settings);
    void ShowOutcome(const Outcome& outcome, ResultAge age);
    /// Nothing has been computed in this mode.
    void HideOutcome();

  private:
    void ShowNotes();

    MessageBoxes& boxes_;
    QLabel* mode_;
    QLabel* fluid_;
    QToolButton* outcomeButton_;
    Outcome outcome_;
};

}  // namespace idrova
