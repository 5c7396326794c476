// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/keypad_point.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace idrova {

bool KeypadPoint::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
    const auto* key = dynamic_cast<QKeyEvent*>(event);
    if (key == nullptr || key->text() != "," || !(key->modifiers() & Qt::KeypadModifier)) {
        return false;
    }
    QKeyEvent point(key->type(), Qt::Key_Period, key->modifiers(), ".", key->isAutoRepeat());
    QCoreApplication::sendEvent(watched, &point);
    event->setAccepted(point.isAccepted());
    return true;
}

}  // namespace idrova
