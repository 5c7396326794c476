// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>
#include <optional>

#include "base/message_boxes.h"
#include "table/table_block.h"
#include "table/table_columns.h"

namespace idrova {

class TableModel;

/// The table on the screen: Tab and Enter go from cell to cell, blocks of cells are copied, pasted
/// and deleted, edits undone. The line numbers stay beside the cells as the headers do above them.
class TableView : public QTableView {
  public:
    /// Starts at `place` and leaves there where it ended. All live longer than the view.
    TableView(TableModel& model, TablePlace& place, MessageBoxes& boxes);

    void ShowResultColumns(bool shown);

    /// Takes what is being typed into a cell as if it had been finished.
    void TakeEdit();

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

  private:
    void AddCommands();
    void AddCommand(const QString& caption, const QList<QKeySequence>& keys,
                    void (TableView::*command)());
    void MakeHeaders();
    void SizeColumns();
    void SizeLines();
    /// Starts the first column and the first line in sight at the edge, also where scrolling ends:
    /// by itself the view would put the last ones at the other edge and cut these.
    void ShowWholeCells();
    std::optional<TableBlock> Selected() const;
    void Cut();
    void Copy();
    void Paste();
    void FillDown();
    void Delete();
    void InsertRows();
    void DeleteRows();
    void Undo();
    void Redo();
    void MoveDown(int rows);

    TableModel& model_;
    TablePlace& place_;
    MessageBoxes& boxes_;
};

}  // namespace idrova
