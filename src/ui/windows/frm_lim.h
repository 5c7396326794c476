// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/kit/child_window.h"

class QLineEdit;

namespace idrova {

struct Program;

/// The limits that results are held against.
class FrmLim : public ChildWindow {
  public:
    explicit FrmLim(Program& program);

  private:
    void Confirm();

    Program& program_;
    const double unit_;  ///< of the pressures, Pa
    QLineEdit* velocity_;
    QLineEdit* loss_;
    QLineEdit* lowestPressure_;
    QLineEdit* highestPressure_;
};

}  // namespace idrova
