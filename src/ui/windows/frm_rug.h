// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/kit/child_window.h"

class QLineEdit;

namespace idrova {

struct Program;

/// A roughness typed by the user.
class FrmRug : public ChildWindow {
  public:
    explicit FrmRug(Program& program);

  private:
    void Confirm();

    Program& program_;
    QLineEdit* roughness_;
};

}  // namespace idrova
