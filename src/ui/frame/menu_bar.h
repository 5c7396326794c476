// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <string_view>

#include "model/settings.h"
#include "shell/shell_state.h"

class QAction;
class QMenuBar;

namespace idrova {

/// The menu bar made from the menu table. Every action carries its control name; one that no
/// command is attached to does nothing.
class MenuBar {
  public:
    explicit MenuBar(QMenuBar& bar);

    /// `item` is a control name of the menu table that is not a menu.
    void Attach(std::string_view item, std::function<void()> command);

    void ShowChecks(const Settings& settings, const ShellState& shell);

    /// Called before every command.
    std::function<void()> beforeCommand = [] {};

    /// Called after every command; shows the check marks as the state has them, since choosing
    /// a checkable item has already flipped its mark.
    std::function<void()> afterCommand = [] {};

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
