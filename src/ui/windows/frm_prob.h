// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDockWidget>

#include "shell/problem_list.h"

class QLabel;
class QListWidget;

namespace idrova {

struct Program;

/// The list of problems below the drawing, opened from the status bar. A click on one, or Enter,
/// selects the place where it can be mended.
class FrmProb : public QDockWidget {
  public:
    FrmProb(Program& program, QWidget* parent);

    void Open();
    /// Of a list that is open.
    void ShowState();

  private:
    void GoTo(int line);

    Program& program_;
    ProblemView shown_;
    QLabel* caption_;
    QListWidget* problems_;
};

}  // namespace idrova
