// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "ui/kit/child_window.h"

class QComboBox;
class QGridLayout;
class QLineEdit;

namespace idrova {

class FieldGrid;
struct Program;

/// The fast settings: one flow rate, length or diameter for every pipe of the drawing.
class FrmVel : public ChildWindow {
  public:
    explicit FrmVel(Program& program);

  private:
    QGridLayout* Rows();
    /// A field with a button that sets its value; Return in the field does the same.
    static void AddSetting(FieldGrid& rows, const QString& caption, QLineEdit* field,
                           const char* button, const std::function<void()>& set);

    void SetFlowRates();
    void SetLengths();
    void SetDiameters();
    void ChooseSize(int position);

    Program& program_;
    QLineEdit* flow_;
    QLineEdit* length_;
    QComboBox* sizes_;
    QLineEdit* diameter_;
};

}  // namespace idrova
