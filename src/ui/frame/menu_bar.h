// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <string_view>

#include "model/settings.h"
#include "shell/shell_state.h"

class QAction;
class QMenuBar;
class QString;

namespace idrova {

/// The menu bar made from the menu table. Every action carries its control name; one that no
/// command is attached to does nothing.
class MenuBar {
  public:
    explicit MenuBar(QMenuBar& bar);

    /// `item` is a control name of the menu table that is not a menu.
    void Attach(std::string_view item, std::function<void()> command);

    void ShowItem(std::string_view item, const QString& caption, bool enabled);
    /// Check marks, and what can be chosen.
    void ShowState(const Settings& settings, const ShellState& shell);

    /// Runs the command of a chosen item. Choosing a checkable item has already flipped its mark:
    /// `ShowState` puts it right.
    std::function<void(const std::function<void()>& command)> run =
        [](const std::function<void()>& command) { command(); };

    MenuBar(const MenuBar&) = delete;
    MenuBar& operator=(const MenuBar&) = delete;

  private:
    struct Item {
        QAction* action = nullptr;
        std::function<void()> command = [] {};
    };
    std::map<std::string_view, Item> items_;
};

}  // namespace idrova
