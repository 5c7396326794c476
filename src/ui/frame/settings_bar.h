// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace idrova {

struct Program;

/// The bar above the windows that offers the settings which the open project was saved with, or
/// says why they are not known. It is there until the user takes them or leaves them.
class SettingsBar : public QFrame {
  public:
    explicit SettingsBar(Program& program);

    void ShowState();

  private:
    void Use();
    void Keep();

    Program& program_;
    QLabel* offer_;
    QPushButton* use_;
};

}  // namespace idrova
