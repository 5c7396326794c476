// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

class QPushButton;

namespace idrova {

/// Base of the windows inside the main window. Such a window is made when it is opened and
/// deleted when it is closed, so its constructor is what fills it. Escape closes it, if it is not
/// the window of a mode; Return presses the button that has the focus, else the default button.
class ChildWindow : public QWidget {
  public:
    /// `name` is the window's name in the system ("FrmFlu").
    ChildWindow(const char* name, const QString& caption);

    /// Shows what has changed since it was last shown.
    virtual void ShowState() {}

    /// Takes what is being typed as if it had been finished. Called before every command.
    virtual void TakeEdits() {}

    /// The frame's buttons; none named: the usual ones.
    virtual Qt::WindowFlags FrameFlags() const { return {}; }

    /// Closes the window with its frame; it is deleted when control returns to the event loop.
    void CloseWindow();

  protected:
    /// It looks so while no other button has the keyboard, which Return would press then.
    void SetDefaultButton(QPushButton* button);
    /// Return in this control is for the control alone, not for the default button.
    void KeepReturnIn(const QWidget* control) { returnKeeper_ = control; }
    void StayOnEscape() { closesOnEscape_ = false; }
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    QPushButton* defaultButton_ = nullptr;
    const QWidget* returnKeeper_ = nullptr;
    bool closesOnEscape_ = true;
};

}  // namespace idrova
