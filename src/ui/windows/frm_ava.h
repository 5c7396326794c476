// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QProgressBar;

namespace idrova {

/// The progress window of a computation. It lies inside the main window rather than being a
/// window of its own: what is on the screen already can be repainted from within the computation,
/// while a new window of the desktop would stay blank until events are handled.
class FrmAva : public QFrame {
  public:
    explicit FrmAva(QWidget* mainWindow);

    /// Both in percent, 0 .. 100. Paints at once.
    void ShowProgress(double closeness, double passes);

  private:
    QProgressBar* closeness_;
    QProgressBar* passes_;
};

}  // namespace idrova
