// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDockWidget>
#include <array>

class QLabel;

namespace idrova {

struct Program;

/// The hint window below the drawing: four lines, of which the second and the fourth say what the
/// actions of the first and the third do.
class FrmHelp : public QDockWidget {
  public:
    FrmHelp(Program& program, QWidget* parent);

    void ShowState();

  protected:
    /// The user closes it by its frame.
    void closeEvent(QCloseEvent* event) override;

  private:
    Program& program_;
    std::array<QLabel*, 4> lines_{};
};

}  // namespace idrova
