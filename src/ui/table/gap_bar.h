// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

#include "table/table_rows.h"

class QLabel;
class QPushButton;

namespace idrova {

class TableModel;

/// The note above the table on rows below its list, with the button that closes up.
class GapBar : public QFrame {
  public:
    /// The model lives longer than the bar.
    explicit GapBar(TableModel& model);

    /// Hides the bar when there is nothing to tell.
    void ShowGap(const GapNote& note);

  private:
    QLabel* text_;
    QPushButton* closeUp_;
};

}  // namespace idrova
