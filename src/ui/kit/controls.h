// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QString>

namespace idrova {

/// Gives a control its name in the system, by which scripts and tests find it.
template <typename Control>
Control* Named(Control* control, const char* name) {
    control->setObjectName(QString::fromLatin1(name));
    return control;
}

/// A label that stands for `field`: its mnemonic, its accessible name. Shows `text` as it is.
inline QLabel* LabelFor(QWidget* field, const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(field);
    if (field->accessibleName().isEmpty()) field->setAccessibleName(text);
    return label;
}

}  // namespace idrova
