// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>

namespace idrova {

class TableModel;

/// The table on the screen: Tab and Enter go from cell to cell, blocks of cells are copied, pasted
/// and deleted, edits undone.
class TableView : public QTableView {
  public:
    explicit TableView(TableModel& model);

    /// Takes what is being typed into a cell as if it had been finished.
    void TakeEdit();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

  private:
    void AddCommands();
    void AddCommand(const QString& caption, const QKeySequence& keys, void (TableView::*command)());
    void SizeColumns();
    void Copy();
    void Paste();
    void Delete();
    void Undo();
    void Redo();
    void MoveDown(int rows);

    TableModel& model_;
};

}  // namespace idrova
