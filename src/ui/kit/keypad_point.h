// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace idrova {

/// Installed on the application, has the decimal key of the keypad write the period that numbers
/// are read with, also on keyboards whose layout has a comma on it.
class KeypadPoint : public QObject {
  public:
    using QObject::QObject;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace idrova
