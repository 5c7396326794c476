// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/text_field.h"

#include <QFocusEvent>

namespace idrova {

void SelectingField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason) return;
    selectAll();
    // A press that gives the focus goes on to place the cursor.
    if (reason == Qt::MouseFocusReason) {
        QMetaObject::invokeMethod(this, "selectAll", Qt::QueuedConnection);
    }
}

}  // namespace idrova
