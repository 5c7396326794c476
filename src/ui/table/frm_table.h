// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/kit/child_window.h"

namespace idrova {

class GapBar;
class TableView;
struct Program;

/// The table: one row a pipe, typed in.
class FrmTable : public ChildWindow {
  public:
    explicit FrmTable(Program& program);

    void ShowState() override;
    void TakeEdits() override;

  private:
    /// The results window shows the pipe of the line that the cursor is in.
    void LineChosen(int line);

    Program& program_;
    TableView* TxtTab;
    GapBar* gap_;
};

}  // namespace idrova
