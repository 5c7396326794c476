// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <utility>

#include "editor/cell_click.h"
#include "ui/kit/child_window.h"

class QLabel;
class QScrollBar;

namespace idrova {

class PlantScene;
class PlantView;
struct Program;

/// The plant drawing: shows the project's network and takes the presses on it.
class FrmCel final : public ChildWindow {
  public:
    explicit FrmCel(Program& program);

    void ShowState() override;

    PlantView& View() { return *view_; }

  protected:
    /// After its last control comes the command panel.
    bool focusNextPrevChild(bool next) override;

  private:
    QScrollBar* Bar(const char* name, Qt::Orientation orientation);
    void ConnectView();
    void PressMouse(int place, MouseButton button, HeldKey held);
    void Drop(int place, HeldKey held);
    QString TipOf(int place) const;
    void Scrolled();
    void Abort();
    void ShowPlace(int place);
    void ShowLegend();
    void RevealSelection();

    Program& program_;
    PlantScene* scene_;
    PlantView* view_;
    QLabel* legend_;
    QScrollBar* ScrX;
    QScrollBar* ScrY;
    bool isBegunByPress_ = false;   ///< the last press began a pipe
    std::pair<int, int> revealed_;  ///< pipe and component that were selected when last shown
    int HoverCell = 0;              ///< cell under the mouse or the cursor; 0 when none
};

}  // namespace idrova
