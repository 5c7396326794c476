// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <functional>

namespace idrova {

struct Program;

/// Computes the drawing or the table as soon as its changes pause, when the user wants that. Asks
/// and tells nothing: what is wrong stands among the problems and in the status bar. The report is
/// kept for the results window and the printer; the results file is left alone.
class ComputeAtOnce {
  public:
    /// `computed` shows what was found, and leaves alone what is being typed.
    ComputeAtOnce(Program& program, std::function<void()> computed);

    /// The state has changed.
    void ShowState();

  private:
    void Compute();

    Program& program_;
    std::function<void()> computed_;
    QTimer pause_;
};

}  // namespace idrova
