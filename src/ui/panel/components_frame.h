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
    void ChooseKind(int position);
    void ChooseName(int position);
    void Insert();
    void TurnPump();
    void ShowChoice();
    void Blink();
    void SetLit(bool lit);

    PanelContext& context_;
    QComboBox* kinds_;
    QComboBox* names_;
    QPushButton* insertButton_;
    QPushButton* turnButton_;
    QTimer* blinkTimer_;  ///< blinks "Insert component" while it is armed
    bool lit_ = false;
};

}  // namespace idrova
