// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "hydraulics/run_settings.h"
#include "ui/kit/child_window.h"

class QLineEdit;

namespace idrova {

struct Program;

/// The calculation data: base pressure and fluid temperature.
class FrmPMin : public ChildWindow {
  public:
    explicit FrmPMin(Program& program);

    void GoToTemperature();

  private:
    void Command1_Click();

    Program& program_;
    const CalculationData shown_;
    QLineEdit* Text1;
    QLineEdit* Text2;
};

}  // namespace idrova
