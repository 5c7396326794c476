// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/name_list.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include "base/number_text.h"
#include "model/pipe_sizes.h"
#include "model/settings.h"
#include "ui/kit/controls.h"
#include "ui/kit/qt_text.h"
#include "ui/kit/text_field.h"

namespace idrova {

NameList::NameList(const char* name) {
    Named(this, name);
    setEditable(true);
    setLineEdit(new SelectingField);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(24);
    // By itself the list takes a typed name that it holds for a choice once the field is left.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
}

void NameList::Refill(const std::vector<std::string>& entries, int position) {
    const QSignalBlocker silent(this);
    clear();
    for (const std::string& entry : entries) addItem(ToQt(entry));
    setCurrentIndex(position);
}

std::string NameList::Text() const {
    return FromQt(currentText());
}

void AddSizes(QComboBox& list) {
    for (int size = 1; size <= kNominalSizes; ++size) list.addItem(ToQt(NominalSizeNames[size]));
    list.setCurrentIndex(-1);
}

QComboBox* SizeList(const char* name, QWidget* parent) {
    auto* list = Named(new QComboBox(parent), name);
    AddSizes(*list);
    return list;
}

void ShowSizeOf(const QLineEdit& diameter, QComboBox& sizes) {
    QObject::connect(&diameter, &QLineEdit::textChanged, &sizes, [&sizes](const QString& text) {
        const QSignalBlocker silent(sizes);
        const double millimetres = ReadNumber(FromQt(text));
        sizes.setCurrentIndex(NominalSizeOf(ToSingle(millimetres / kMillimetresPerMetre)) - 1);
    });
}

void OnChosen(QComboBox& list, const std::function<void(int)>& chosen) {
    // The first is silent when the same entry is chosen again, the second when a script chooses.
    QObject::connect(&list, &QComboBox::currentIndexChanged, &list, [chosen](int position) {
        if (position >= 0) chosen(position);
    });
    QObject::connect(&list, &QComboBox::activated, &list, chosen);
}

}  // namespace idrova
