// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "editor/cell_click.h"
#include "ui/kit/child_window.h"

class QScrollBar;

namespace idrova {

class PlantScene;
class PlantView;
struct Program;

/// The plant drawing: shows the project's network and takes the presses on it.
class FrmCel final : public ChildWindow {
  public:
    explicit FrmCel(Program& program);

    ~FrmCel() override;

    void ShowState() override;

  protected:
    /// After its last control comes the command panel.
    bool focusNextPrevChild(bool next) override;

  private:
    struct Shown;

    QScrollBar* Bar(const char* name, Qt::Orientation orientation);
    void ConnectView();
    void Img_MouseDown(int place, MouseButton button);
    void Scrolled();
    void Abort();
    void ShowPlace(int place);

    Program& program_;
    std::unique_ptr<Shown> shown_;  ///< null before the first time
    PlantScene* scene_;
    PlantView* view_;
    QScrollBar* ScrX;
    QScrollBar* ScrY;
    int HoverCell = 0;  ///< cell under the mouse or the cursor; 0 when none
};

}  // namespace idrova
