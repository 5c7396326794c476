// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>

#include "results/result_tables.h"

namespace idrova {

/// One table of results for a view. `kSortRole` gives numbers as numbers.
class ResultModel : public QAbstractTableModel {
  public:
    static constexpr int kSortRole = Qt::UserRole;

    /// A table equal to the one that is shown changes nothing, so that views keep place and
    /// selection. Old results are grey, those beyond a limit red.
    void Show(ResultTable table, bool old);

    NoteOn About() const { return table_.about; }
    /// The pipe, point or cell of a row.
    int NumberAt(int row) const { return table_.rows[static_cast<std::size_t>(row)].number; }
    /// The row of a pipe, point or cell; -1 when there is none.
    int RowOf(int number) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QVariant Colour(const QModelIndex& index) const;

    ResultTable table_;
    bool old_ = false;
};

}  // namespace idrova
