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

QString WithoutMnemonic(QString caption) {
    return caption.remove('&');
}

/// What a user finds: the entries of each menu, by the menu's name.
void CollectMenu(const QList<QAction*>& actions, const QString& menu,
                 std::map<QString, QList<QAction*>>& found) {
    for (QAction* action : actions) {
        if (action->isSeparator()) continue;
        found[menu].push_back(action);
        if (QMenu* sub = action->menu()) CollectMenu(sub->actions(), sub->objectName(), found);
    }
}

class MenuBarTest : public MainWindow {
  protected:
    MenuBarTest() { CollectMenu(mdi->menuBar()->actions(), "", menus); }

    std::map<QString, QList<QAction*>> menus;
};

TEST_F(MenuBarTest, ShowsTheTableEntryForEntry) {
    std::map<QString, QList<const MenuEntry*>> expected;
    for (const MenuEntry& entry : MenuTable()) expected[ToQt(entry.parent)].push_back(&entry);
    ASSERT_EQ(menus.size(), expected.size());
    for (const auto& [menu, entries] : expected) {
        ASSERT_EQ(menus[menu].size(), entries.size()) << FromQt(menu);
        for (qsizetype i = 0; i < entries.size(); ++i) {
            const MenuEntry& entry = *entries[i];
            const QAction& action = *menus[menu][i];
            const bool isMenu = entry.kind == MenuKind::Menu;
            EXPECT_EQ(isMenu ? action.menu()->objectName() : action.objectName(), ToQt(entry.name));
            EXPECT_EQ(WithoutMnemonic(action.text()), ToQt(entry.caption));
            EXPECT_EQ(action.isChecked(), IsChecked(entry, {}, {})) << FromQt(action.text());
            EXPECT_EQ(action.shortcut().toString(QKeySequence::PortableText), ToQt(entry.shortcut));
            EXPECT_EQ(isMenu, action.statusTip().isEmpty()) << FromQt(action.text());
        }
    }
}

TEST_F(MenuBarTest, MnemonicsAreUniqueInEachMenu) {
    for (const auto& [menu, actions] : menus) {
        std::set<QString> keys;
        for (const QAction* action : actions) {
            const QString key = QKeySequence::mnemonic(action->text()).toString();
            EXPECT_FALSE(key.isEmpty()) << FromQt(action->text());
            EXPECT_TRUE(keys.insert(key).second) << FromQt(action->text());
        }
    }
}

TEST_F(MenuBarTest, GroupsKeepExactlyOneItemChecked) {
    for (const char* name : {"t1", "t5", "t5", "Rettangolare", "Rettangolare", "Circolare",
                             "p_mbar", "p_mbar", "Tabella", "sintub", "Grafico", "Cor1"}) {
        Choose(name);
        EXPECT_TRUE(Item(name).isChecked()) << name;
        for (const char* group : {"Rugosita", "Sezione", "Pressione", "Modalita", "Correlazioni"}) {
            int checked = 0;
            for (const QAction* action : menus[group]) checked += action->isChecked() ? 1 : 0;
            EXPECT_EQ(checked, 1) << group << " after " << name;
        }
    }
}

}  // namespace
}  // namespace idrova
