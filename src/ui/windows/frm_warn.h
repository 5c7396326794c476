// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

namespace idrova {

/// The splash window. Ends once: when its time is over, at a click or at a key.
class FrmWarn : public QWidget {
  public:
    /// `ended` is called when the window has gone; the window deletes itself afterwards.
    FrmWarn(int milliseconds, std::function<void()> ended);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void End();

    QTimer endTimer_;
    std::function<void()> ended_;
};

}  // namespace idrova
