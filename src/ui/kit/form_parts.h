// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QGridLayout>
#include <functional>
#include <initializer_list>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace idrova {

/// The fields of a window in rows of caption, field, unit and hint. Tab follows the rows.
class FieldGrid : public QGridLayout {
  public:
    FieldGrid();

    void AddField(const QString& caption, QWidget* field, const QString& unit = {},
                  const QString& hint = {});

    /// A computed value.
    void AddValue(const QString& caption, QLabel* value, const QString& unit = {});

    /// A control that says itself what it is for, alone in its row or with a field beside it.
    void AddControl(QWidget* control);
    void AddControl(QWidget* control, QWidget* field, QLabel* unit);

    /// A button at the end of the last row, and a heading over the buttons.
    void AddButton(QPushButton* button);
    void AddHeading(QLabel* heading);
};

/// A label that shows its text as it is.
QLabel* PlainLabel(const QString& text);

/// A label for a computed value, framed like a field.
QLabel* ValueLabel(const char* name);

QLineEdit* TextField(const char* name);

QPushButton* CommandButton(const char* name, const QString& caption,
                           const std::function<void()>& click);

/// Buttons side by side at the right end.
QBoxLayout* ButtonRow(std::initializer_list<QPushButton*> buttons);

}  // namespace idrova
