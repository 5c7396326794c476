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
    void Confirm();

    Program& program_;
    const CalculationData shown_;
    QLineEdit* basePressure_;
    QLineEdit* temperature_;
};

}  // namespace idrova
