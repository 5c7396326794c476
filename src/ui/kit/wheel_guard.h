// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace idrova {

/// Installed on the application, keeps the wheel from changing a list, slider or spin box that does
/// not have the keyboard: what the wheel was meant to scroll gets it.
class WheelGuard : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace idrova
