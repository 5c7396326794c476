// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace idrova {

/// A field for one line. Getting the keyboard selects its text, so that typing replaces it; coming
/// back from a menu, or from another program, leaves what is being typed as it is.
class SelectingField : public QLineEdit {
  public:
    using QLineEdit::QLineEdit;

  protected:
    void focusInEvent(QFocusEvent* event) override;
};

}  // namespace idrova
