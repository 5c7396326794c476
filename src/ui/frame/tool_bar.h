// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QToolBar>
#include <functional>

class QMenuBar;

namespace idrova {

/// The commands that are used most, below the menus: the menu's own items, and the computation.
class ToolBar : public QToolBar {
  public:
    /// Items that the menu does not have are left out.
    ToolBar(const QMenuBar& menu, const std::function<void()>& compute);

    void ShowState(bool mayCompute);

  private:
    void AddItem(const QMenuBar& menu, const char* name, const QIcon& icon);

    QAction* compute_ = nullptr;
};

}  // namespace idrova
