// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>

#include "ui/kit/child_window.h"

namespace idrova {

/// The about window. Opens progressively, up to its full size.
class FrmLogo : public ChildWindow {
  public:
    FrmLogo();

    QSize sizeHint() const override { return {1, 1}; }
    /// No button to maximise what has one size.
    Qt::WindowFlags FrameFlags() const override {
        return Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
               Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    }

  private:
    QWidget* MakeContent();
    void OpenFurther();

    QTimer growTimer_;
    QSizeF reached_;    ///< of the frame so far
    QWidget* content_;  ///< at its full size from the start; the window uncovers it
};

}  // namespace idrova
