// SPDX-License-Identifier: GPL-3.0-or-later
#include <QMenu>
#include <QMenuBar>
#include <map>
#include <set>

#include "main_window.h"
#include "shell/menu_table.h"
#include "ui/qt_text.h"

namespace idrova {
namespace {

/// What a user finds: the entries of each menu, by the menu's name.
using Menus = std::map<QString, QList<QAction*>>;

void CollectMenu(const QList<QAction*>& actions, const QString& menu, Menus& found) {
    for (QAction* action : actions) {
        if (action->isSeparator()) continue;
        found[menu].push_back(action);
        if (QMenu* sub = action->menu()) CollectMenu(sub->actions(), sub->objectName(), found);
    }
}

TEST_F(MainWindow, MenuBarShowsTheTableAndKeepsOneOfEachGroupChecked) {
    Menus menus;
    CollectMenu(mdi->menuBar()->actions(), "", menus);
    std::map<QString, qsizetype> next;
    std::map<QString, std::set<QString>> keys;
    for (const MenuEntry& entry : MenuTable()) {
        SCOPED_TRACE(std::string(entry.name));
        const QString menu = ToQt(entry.parent);
        ASSERT_LT(next[menu], menus[menu].size());
        const QAction& action = *menus[menu][next[menu]++];
        const bool isMenu = entry.kind == MenuKind::Menu;
        EXPECT_EQ(isMenu ? action.menu()->objectName() : action.objectName(), ToQt(entry.name));
        EXPECT_EQ(action.text().remove('&'), ToQt(entry.caption));
        EXPECT_EQ(action.isChecked(), IsChecked(entry, project, program->shell));
        EXPECT_EQ(action.shortcut().toString(QKeySequence::PortableText), ToQt(entry.shortcut));
        EXPECT_EQ(isMenu, action.statusTip().isEmpty());
        const QString key = QKeySequence::mnemonic(action.text()).toString();
        EXPECT_FALSE(key.isEmpty());
        EXPECT_TRUE(keys[menu].insert(key).second) << "its mnemonic is taken";
    }
    for (const auto& [menu, actions] : menus) EXPECT_EQ(actions.size(), next[menu]);

    for (const char* name : {"t1", "t5", "t5", "Rettangolare", "Rettangolare", "Circolare",
                             "p_mbar", "p_mbar", "Tabella", "sintub", "Grafico", "Cor1"}) {
        Choose(name);
        EXPECT_TRUE(Item(name).isChecked()) << name;
        for (const char* group : {"Rugosita", "Sezione", "Pressione", "Modalita", "Correlazioni"}) {
            const auto isChecked = [](const QAction* action) { return action->isChecked(); };
            EXPECT_EQ(std::ranges::count_if(menus[group], isChecked), 1) << group << " " << name;
        }
    }
}

}  // namespace
}  // namespace idrova
