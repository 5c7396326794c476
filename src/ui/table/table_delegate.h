// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>
#include <functional>

namespace idrova {

/// Edits the cells of the table: the nominal size by a list placed over its cell, all others as
/// text, in which a comma writes the period. Draws the frames.
class TableDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// A size was chosen, also when it is the one that the cell shows: `position` in `list`, from
    /// 0. Leaving the list in any other way writes nothing.
    std::function<void(QWidget* list, const QModelIndex& cell, int position)> sizeChosen;
    /// The list was closed without a choice.
    std::function<void(QWidget* list)> listLeft;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

  protected:
    bool eventFilter(QObject* editor, QEvent* event) override;
};

}  // namespace idrova
