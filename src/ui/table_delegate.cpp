// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/table_delegate.h"

#include <QComboBox>
#include <QPersistentModelIndex>
#include <QTimer>

#include "table/table_columns.h"
#include "ui/name_list.h"

namespace idrova {

QWidget* TableDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const {
    if (index.column() != table_column::kNominalSize) {
        return QStyledItemDelegate::createEditor(parent, option, index);
    }
    QComboBox* list = SizeList("Combo1", parent);
    list->setAccessibleName("Nominal size");
    connect(list, &QComboBox::activated, this,
            [this, list, cell = QPersistentModelIndex(index)](int position) {
                sizeChosen(list, cell, position);
            });
    // The list has its place over the cell only once the view has taken it.
    auto* placed = new QTimer(list);
    placed->setSingleShot(true);
    connect(placed, &QTimer::timeout, list, &QComboBox::showPopup);
    placed->start(0);
    return list;
}

void TableDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* list = qobject_cast<QComboBox*>(editor);
    if (list == nullptr) return QStyledItemDelegate::setEditorData(editor, index);
    QString size = index.data().toString();
    size.chop(1);  // the inch mark
    list->setCurrentIndex(list->findText(size));
}

void TableDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                 const QModelIndex& index) const {
    if (qobject_cast<QComboBox*>(editor) != nullptr) return;
    QStyledItemDelegate::setModelData(editor, model, index);
}

}  // namespace idrova
