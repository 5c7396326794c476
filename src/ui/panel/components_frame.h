// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGroupBox>

#include "ui/panel/panel_parts.h"

class QComboBox;
class QPushButton;
class QTimer;

namespace idrova {

/// `Frame6` of the command panel: the component that is placed next.
class ComponentsFrame : public QGroupBox {
  public:
    explicit ComponentsFrame(PanelContext& context);

    void Show();

  private:
    void Combo1_Click(int position);
    void Combo3_Click(int position);
    void Command3_Click();
    void Command2_Click();
    void ShowChoice();
    void Timer1_Timer();
    void SetLit(bool lit);

    PanelContext& context_;
    QComboBox* Combo1;
    QComboBox* Combo3;
    QPushButton* Command3;
    QPushButton* Command2;
    QTimer* Timer1;  ///< blinks "Insert component" while it is armed
    bool lit_ = false;
};

}  // namespace idrova
