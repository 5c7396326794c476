// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "ui/kit/child_window.h"
#include "ui/windows/result_model.h"

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QTabWidget;

namespace idrova {

class ResultView;
struct Program;

/// The results of the last computation in the working mode: pipes, points and components in
/// tables, and the report. What is selected here is selected in drawing or table, and the other
/// way round.
class FrmRis : public ChildWindow {
  public:
    explicit FrmRis(Program& program);

    void ShowState() override;
    QSize sizeHint() const override { return {820, 460}; }

  private:
    struct Tab {
        ResultModel model;
        ResultView* view = nullptr;
    };

    void LayOut();
    void ShowTables();
    void ShowReport();
    void ShowSelection();
    void Select(const Tab& tab);

    Program& program_;
    std::array<Tab, 3> tables_;  ///< pipes, points, components
    QLabel* state_;
    QLineEdit* filter_;
    QTabWidget* tabs_;
    QPlainTextEdit* report_;
    bool showsSelection_ = false;  ///< a selection comes from elsewhere
};

}  // namespace idrova
