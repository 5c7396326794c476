// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/menu_bar.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <utility>

#include "base/assertion.h"
#include "shell/menu_table.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

QAction* MakeAction(QWidget& menu, const MenuEntry& entry) {
    auto* action = new QAction(ToQt(CaptionWithMnemonic(entry)), &menu);
    action->setObjectName(ToQt(entry.name));
    action->setShortcuts(
        QKeySequence::listFromString(ToQt(entry.shortcut), QKeySequence::PortableText));
    action->setStatusTip(ToQt(entry.tip));
    action->setCheckable(entry.kind == MenuKind::Check || entry.kind == MenuKind::OneOf);
    // Toolkits that move items by their words would move "Exit" and "About" out of their menus.
    action->setMenuRole(QAction::NoRole);
    return action;
}

}  // namespace

MenuBar::MenuBar(QMenuBar& bar) {
    std::map<std::string_view, QMenu*> menus;
    for (const MenuEntry& entry : MenuTable()) {
        QMenu* parent = entry.parent.empty() ? nullptr : menus.at(entry.parent);
        if (entry.separated && parent != nullptr) parent->addSeparator();
        if (entry.kind == MenuKind::Menu) {
            const QString caption = ToQt(CaptionWithMnemonic(entry));
            QMenu* menu = parent != nullptr ? parent->addMenu(caption) : bar.addMenu(caption);
            menu->setObjectName(ToQt(entry.name));
            menus[entry.name] = menu;
            continue;
        }
        QWidget& holder = parent != nullptr ? static_cast<QWidget&>(*parent) : bar;
        QAction* action = MakeAction(holder, entry);
        holder.addAction(action);
        Item& item = items_[entry.name];
        item.action = action;
        QObject::connect(action, &QAction::triggered, action, [this, &item] { run(item.command); });
    }
}

void MenuBar::Attach(std::string_view item, std::function<void()> command) {
    Assert(items_.contains(item));
    items_[item].command = std::move(command);
}

void MenuBar::ShowItem(std::string_view item, const QString& caption, bool enabled) {
    QAction& action = *items_.at(item).action;
    action.setText(caption);
    action.setEnabled(enabled);
}

void MenuBar::ShowState(const Settings& settings, const ShellState& shell) {
    for (const MenuEntry& entry : MenuTable()) {
        const auto found = items_.find(entry.name);
        if (found == items_.end()) continue;
        QAction& action = *found->second.action;
        action.setEnabled(IsEnabled(entry, settings.Mode));
        if (action.isCheckable()) action.setChecked(IsChecked(entry, settings, shell));
    }
}

}  // namespace idrova
