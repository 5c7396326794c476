// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/table_delegate.h"

#include <QComboBox>
#include <QTimer>

#include "model/pipe_sizes.h"
#include "table/table_columns.h"
#include "ui/controls.h"
#include "ui/qt_text.h"
#include "ui/table_model.h"

namespace idrova {

QWidget* TableDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const {
    if (index.column() != table_column::kNominalSize) {
        editor_ = QStyledItemDelegate::createEditor(parent, option, index);
        return editor_;
    }
    auto* list = Named(new QComboBox(parent), "Combo1");
    for (int size = 1; size <= kNominalSizes; ++size) list->addItem(ToQt(NominalSizeNames[size]));
    list->setAccessibleName("Nominal size");
    // Qt makes editors in a const function, and only a delegate that is not const emits.
    auto* self = const_cast<TableDelegate*>(this);  // NOLINT(*-const-cast)
    connect(list, &QComboBox::activated, self, [self, list] {
        Q_EMIT self->commitData(list);
        Q_EMIT self->closeEditor(list);
    });
    // The list has its place over the cell only once the view has taken it.
    QTimer::singleShot(0, list, &QComboBox::showPopup);
    editor_ = list;
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
    const auto* list = qobject_cast<QComboBox*>(editor);
    if (list == nullptr) return QStyledItemDelegate::setModelData(editor, model, index);
    if (list->currentIndex() < 0) return;
    dynamic_cast<TableModel&>(*model).ChooseSize(index, list->currentIndex());
}

void TableDelegate::TakeEdit() {
    if (editor_ == nullptr || editor_->isHidden()) return;
    QWidget* editor = editor_;
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor);
}

}  // namespace idrova
