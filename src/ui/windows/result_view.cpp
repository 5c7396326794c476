// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/result_view.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSortFilterProxyModel>
#include <algorithm>

#include "ui/kit/controls.h"
#include "ui/windows/result_model.h"

namespace idrova {

ResultView::ResultView(const char* name, ResultModel& model)
    : model_(model), sorted_(new QSortFilterProxyModel(this)) {
    Named(this, name);
    setAccessibleName(name);
    sorted_->setSourceModel(&model);
    sorted_->setSortRole(ResultModel::kSortRole);
    sorted_->setFilterKeyColumn(-1);
    sorted_->setFilterCaseSensitivity(Qt::CaseInsensitive);
    setModel(sorted_);
    setSortingEnabled(true);
    sortByColumn(0, Qt::AscendingOrder);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    connect(sorted_, &QAbstractItemModel::modelReset, this, [this] { resizeColumnsToContents(); });
}

void ResultView::Filter(const QString& text) {
    sorted_->setFilterFixedString(text);
}

std::vector<int> ResultView::SelectedNumbers() const {
    std::vector<int> numbers;
    for (const QModelIndex& row : selectionModel()->selectedRows()) {
        numbers.push_back(model_.NumberAt(sorted_->mapToSource(row).row()));
    }
    std::ranges::sort(numbers);
    return numbers;
}

void ResultView::SelectNumbers(const std::vector<int>& numbers) {
    QItemSelection rows;
    for (const int number : numbers) {
        const int row = model_.RowOf(number);
        if (row < 0) continue;
        const QModelIndex shown = sorted_->mapFromSource(model_.index(row, 0));
        if (shown.isValid()) rows.select(shown, shown);
    }
    if (rows.isEmpty()) return clearSelection();
    const QModelIndex first = rows.front().topLeft();
    selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    // Whatever keys are down, these rows are selected.
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(first);
}

void ResultView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return Copy();
    QTableView::keyPressEvent(event);
}

void ResultView::Copy() const {
    QModelIndexList rows = selectionModel()->selectedRows();
    if (rows.isEmpty()) return;  // what was copied before stays
    std::ranges::sort(rows, {}, [](const QModelIndex& index) { return index.row(); });
    QString text;
    for (const QModelIndex& row : rows) {
        QStringList cells;
        for (int column = 0; column < sorted_->columnCount(); ++column) {
            cells += row.siblingAtColumn(column).data().toString();
        }
        text += cells.join('\t') + '\n';
    }
    QApplication::clipboard()->setText(text);
}

}  // namespace idrova
