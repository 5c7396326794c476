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
    Program& program_;
    TableView* TxtTab;
    GapBar* gap_;
};

}  // namespace idrova
