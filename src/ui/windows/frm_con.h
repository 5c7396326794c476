// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/kit/child_window.h"

namespace idrova {

class NameList;
struct Program;

/// The configuration: which text editor shows the results.
class FrmCon : public ChildWindow {
  public:
    explicit FrmCon(Program& program);

  private:
    void Save();

    Program& program_;
    NameList* editor_;
};

}  // namespace idrova
