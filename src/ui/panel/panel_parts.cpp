// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/panel/panel_parts.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QRadioButton>
#include <QSignalBlocker>

#include "ui/kit/controls.h"
#include "ui/kit/qt_text.h"

namespace idrova {

NumberBox::NumberBox(const char* name, const std::function<void(std::string_view)>& typed) {
    Named(this, name);
    connect(this, &QLineEdit::textChanged, this,
            [typed](const QString& text) { typed(FromQt(text)); });
}

bool NumberBox::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = dynamic_cast<QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
    }
    return SelectingField::event(event);
}

void NumberBox::Show(const std::string& text) {
    const QString shown = ToQt(text);
    if (shown == QLineEdit::text()) return;
    const QSignalBlocker silent(this);
    setText(shown);
}

KnownChoice::KnownChoice(const char* name, const std::function<void(bool)>& chosen)
    : unknown_(new QRadioButton("Unknown", this)), known_(new QRadioButton("Value known", this)) {
    unknown_->setObjectName(QString(name) + "_0");
    known_->setObjectName(QString(name) + "_1");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(unknown_);
    row->addWidget(known_);
    row->addStretch(1);
    connect(known_, &QRadioButton::toggled, this, chosen);
}

void KnownChoice::Show(bool known) {
    const QSignalBlocker silent(known_);
    (known ? known_ : unknown_)->setChecked(true);
}

}  // namespace idrova
