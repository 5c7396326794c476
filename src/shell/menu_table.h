// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "shell/shell_state.h"

namespace idrova {

enum class MenuKind {
    Menu,     ///< opens further entries
    Command,  ///< runs a command
    Check,    ///< a command whose check mark stands for a state of its own
    OneOf,    ///< a command of a menu in which exactly one entry of this kind is checked
};

/// One entry of the menu bar.
struct MenuEntry {
    std::string_view name;    ///< control name
    std::string_view parent;  ///< name of the menu that holds it; empty for the menu bar itself
    std::string_view caption;
    MenuKind kind = MenuKind::Command;
    std::size_t mnemonic = 0;        ///< position of the underlined letter in the caption
    std::string_view shortcut = {};  ///< portable key texts, "A; B", or empty
    std::string_view tip = {};       ///< one line for the status bar
    bool separated = false;          ///< a separator stands before it
};

/// The whole menu bar in display order; a menu stands before its entries.
std::span<const MenuEntry> MenuTable();

/// The caption with "&" before its mnemonic.
std::string CaptionWithMnemonic(const MenuEntry& entry);

/// Whether the entry can be chosen in a mode: fast settings, labels, colours and zoom are for the
/// drawing alone.
bool IsEnabled(const MenuEntry& entry, WorkMode mode);

/// Whether the entry carries its check mark in the present state.
bool IsChecked(const MenuEntry& entry, const Settings& settings, const ShellState& shell);

}  // namespace idrova
