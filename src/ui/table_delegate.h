// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QStyledItemDelegate>

namespace idrova {

/// Edits the cells of the table: the nominal size by a list placed over its cell, all others as
/// text.
class TableDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

    /// Takes what is being typed into a cell as if it had been finished.
    void TakeEdit();

  private:
    mutable QPointer<QWidget> editor_;
};

}  // namespace idrova
