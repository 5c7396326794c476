// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDockWidget>
#include <array>
#include <functional>
#include <string_view>

class QLabel;

namespace idrova {

/// The hint window below the drawing: four lines, of which the second and the fourth say what the
/// actions of the first and the third do.
class FrmHelp : public QDockWidget {
  public:
    explicit FrmHelp(QWidget* parent);

    void ShowHints(const std::array<std::string_view, 4>& lines);

    /// Called when the user closes the window by its frame.
    std::function<void()> closedByUser = [] {};

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    std::array<QLabel*, 4> lines_{};
};

}  // namespace idrova
