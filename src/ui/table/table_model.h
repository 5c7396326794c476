// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>
#include <QUndoStack>
#include <functional>
#include <string>

#include "table/table_block.h"

namespace idrova {

/// The rows of the table, 2 .. 100, for a Qt view; line 0 of the model shows row 2. Every change
/// runs the rule of the cells and can be undone for the whole run, whatever windows come and go.
class TableModel : public QAbstractTableModel {
  public:
    /// Role of what is true for a cell with a frame.
    static constexpr int kFramedRole = Qt::UserRole;

    /// Both live longer than the model.
    TableModel(Project& project, TableTexts& texts);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /// `position` in the list of sizes, from 0.
    void ChooseSize(const QModelIndex& cell, int position);

    std::string Copy(const TableBlock& block) const;
    void Paste(const TableBlock& block, const std::string& text);
    void FillDown(const TableBlock& block);
    void Clear(const TableBlock& block, const QString& name);

    /// Whole rows. False when the table has no room for more.
    bool InsertRows(int row, int count);
    void DeleteRows(int firstRow, int lastRow);
    void CloseUp();

    /// Shows these right of the cells; they cannot be edited.
    void ShowResults(const RowResults& results);
    /// Shows what differs from what is shown. In another pressure unit nothing can be undone any
    /// more.
    void ShowState();
    /// Shows the table of another project, whose edits start here.
    void StartAnew();

    QUndoStack& Undo() { return undo_; }

    static int RowOf(const QModelIndex& index);

  private:
    class Change;

    void Apply(const QString& name, const std::function<void()>& edit);
    void Announce();
    QVariant Ground(int row, int column) const;
    QVariant Result(int row, int column, int role) const;
    QString Tip(int row, int column) const;

    Project& project_;
    TableTexts& texts_;
    TableTexts shown_;
    RowResults results_;
    int lastListed_ = 0;   ///< row
    float shownUnit_ = 0;  ///< Pa per unit
    QUndoStack undo_;
};

}  // namespace idrova
