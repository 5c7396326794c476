// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>
#include <vector>

class QSortFilterProxyModel;

namespace idrova {

class ResultModel;

/// A table of results that is sorted by a click on a header, filtered by a text and copied with
/// tabs, in the order in which it is shown.
class ResultView : public QTableView {
  public:
    ResultView(const char* name, ResultModel& model);

    /// Shows the rows that have the text in some column.
    void Filter(const QString& text);

    /// The pipe, point or cell of the row that the user has selected; 0 for none.
    std::vector<int> SelectedNumbers() const;
    /// Selects their rows and brings the first into view; what has no row is passed over.
    void SelectNumbers(const std::vector<int>& numbers);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Copy() const;

    ResultModel& model_;
    QSortFilterProxyModel* sorted_;
};

}  // namespace idrova
