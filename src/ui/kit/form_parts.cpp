// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/form_parts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "ui/kit/controls.h"
#include "ui/kit/text_field.h"

namespace idrova {

namespace {

enum Column { ColumnCaption, ColumnField, ColumnUnit, ColumnHint, ColumnButton };

constexpr int kValueCharacters = 14;  ///< what a value label shows at least

}  // namespace

FieldGrid::FieldGrid() {
    setColumnStretch(ColumnField, 1);
}

void FieldGrid::AddField(const QString& caption, QWidget* field, const QString& unit,
                         const QString& hint) {
    const int row = rowCount();
    addWidget(LabelFor(field, caption), row, ColumnCaption);
    addWidget(field, row, ColumnField);
    if (!unit.isEmpty()) addWidget(PlainLabel(unit), row, ColumnUnit);
    const int hintColumn = unit.isEmpty() ? ColumnUnit : ColumnHint;
    if (!hint.isEmpty()) addWidget(PlainLabel(hint), row, hintColumn, 1, ColumnButton - hintColumn);
    field->setAccessibleDescription(hint);
}

void FieldGrid::AddValue(const QString& caption, QLabel* value, const QString& unit) {
    const int row = rowCount();
    addWidget(PlainLabel(caption), row, ColumnCaption);
    addWidget(value, row, ColumnField);
    if (!unit.isEmpty()) addWidget(PlainLabel(unit), row, ColumnUnit);
}

void FieldGrid::AddControl(QWidget* control) {
    addWidget(control, rowCount(), ColumnField);
}

void FieldGrid::AddControl(QWidget* control, QWidget* field, QLabel* unit) {
    const int row = rowCount();
    addWidget(control, row, ColumnCaption);
    addWidget(field, row, ColumnField);
    addWidget(unit, row, ColumnUnit);
}

void FieldGrid::AddButton(QPushButton* button) {
    addWidget(button, rowCount() - 1, ColumnButton);
}

void FieldGrid::AddHeading(QLabel* heading) {
    addWidget(heading, rowCount(), ColumnButton);
}

QLabel* PlainLabel(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QLabel* ValueLabel(const char* name) {
    auto* label = Named(PlainLabel({}), name);
    label->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setMargin(2);
    // A long number is cut: it must not widen the window.
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * kValueCharacters);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return label;
}

QLineEdit* TextField(const char* name) {
    return Named<QLineEdit>(new SelectingField, name);
}

QPushButton* CommandButton(const char* name, const QString& caption,
                           const std::function<void()>& click) {
    auto* button = Named(new QPushButton(caption), name);
    QObject::connect(button, &QPushButton::clicked, button, [click] { click(); });
    return button;
}

QBoxLayout* ButtonRow(std::initializer_list<QPushButton*> buttons) {
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    for (QPushButton* button : buttons) row->addWidget(button);
    return row;
}

}  // namespace idrova
