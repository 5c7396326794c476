// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>
#include <string>

#include "hydraulics/compute_network.h"
#include "model/settings.h"
#include "shell/outcome_notes.h"

class QLabel;
class QStatusBar;
class QToolButton;

namespace idrova {

/// The part of the status bar that stays: what a command had to say, what became of the last
/// computation, fluid and mode. A click on the outcome opens the list of problems.
class StatusLine {
  public:
    StatusLine(QStatusBar& bar, const std::function<void()>& openProblems);
    StatusLine(const StatusLine&) = delete;
    StatusLine& operator=(const StatusLine&) = delete;

    /// On the left, where tips come over it for their time, until it is replaced. Empty words take
    /// it away.
    void Say(const std::string& words);
    void ShowSettings(const Settings& settings);
    void ShowOutcome(const Outcome& outcome, ResultAge age);
    /// Nothing has been computed in this mode.
    void HideOutcome();

  private:
    QStatusBar& bar_;
    QString said_;
    QLabel* mode_;
    QLabel* fluid_;
    QToolButton* outcomeButton_;
};

}  // namespace idrova
