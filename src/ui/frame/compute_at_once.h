// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>

namespace idrova {

struct Program;

/// Computes the drawing or the table as soon as its changes pause, when the user wants that. Asks
/// and tells nothing: what is wrong stands among the problems and in the status bar. The report is
/// kept for the results window and the printer; the results file is left alone.
class ComputeAtOnce {
  public:
    explicit ComputeAtOnce(Program& program);

    /// The state has changed.
    void ShowState();

  private:
    void Compute();

    Program& program_;
    QTimer pause_;
};

}  // namespace idrova
