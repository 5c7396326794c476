// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/wheel_guard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QSlider>

namespace idrova {

namespace {

/// The widget when the wheel would change its value.
QWidget* ChangedByWheel(QObject* watched) {
    if (auto* list = qobject_cast<QComboBox*>(watched)) return list;
    if (auto* slider = qobject_cast<QSlider*>(watched)) return slider;
    return qobject_cast<QAbstractSpinBox*>(watched);
}

}  // namespace

bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel && event->type() != QEvent::Polish) return false;
    QWidget* control = ChangedByWheel(watched);
    if (control == nullptr) return false;
    if (event->type() == QEvent::Polish) {
        // By itself the wheel would give the keyboard before it is asked who has it.
        if (control->focusPolicy() == Qt::WheelFocus) control->setFocusPolicy(Qt::StrongFocus);
        return false;
    }
    if (control->hasFocus()) return false;
    event->ignore();
    return true;
}

}  // namespace idrova
