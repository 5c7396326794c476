// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/child_window.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>

#include "ui/kit/controls.h"

namespace idrova {

ChildWindow::ChildWindow(const char* name, const QString& caption) {
    Named(this, name);
    setWindowTitle(caption);
}

void ChildWindow::CloseWindow() {
    // Closing the content alone would leave its empty frame on the screen.
    QWidget* frame = parentWidget();
    (frame != nullptr ? frame : this)->close();
}

void ChildWindow::SetDefaultButton(QPushButton* button) {
    defaultButton_ = button;
    button->setDefault(true);
    connect(qApp, &QApplication::focusChanged, button, [button](QWidget* /*old*/, QWidget* now) {
        const auto* focused = qobject_cast<QPushButton*>(now);
        button->setDefault(focused == nullptr || focused == button);
    });
}

void ChildWindow::keyPressEvent(QKeyEvent* event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape && closesOnEscape_) {
        CloseWindow();
    } else if (isReturn && returnKeeper_ != nullptr && returnKeeper_->hasFocus()) {
        event->accept();
    } else if (isReturn && defaultButton_ != nullptr) {
        defaultButton_->click();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void ChildWindow::showEvent(QShowEvent* event) {
    // Outside dialogs a focused button ignores Return, which would then press the default one.
    for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(true);
    QWidget::showEvent(event);
}

}  // namespace idrova
