// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/menu_table.h"

#include <gtest/gtest.h>

#include <set>

namespace idrova {
namespace {

using Names = std::set<std::string_view>;

Names Checked(const Settings& settings, const ShellState& shell) {
    Names names;
    for (const MenuEntry& entry : MenuTable()) {
        if (IsChecked(entry, settings, shell)) names.insert(entry.name);
    }
    return names;
}

TEST(MenuTable, EntriesHangInAMenuBeforeThemAndNamesAndKeysAreUnique) {
    Names menus{""};
    Names items;
    Names keys;
    for (const MenuEntry& entry : MenuTable()) {
        EXPECT_TRUE(menus.contains(entry.parent)) << entry.name;
        Names& sameKind = entry.kind == MenuKind::Menu ? menus : items;
        EXPECT_TRUE(sameKind.insert(entry.name).second) << entry.name;
        EXPECT_TRUE(entry.shortcut.empty() || keys.insert(entry.shortcut).second) << entry.name;
        EXPECT_NE(entry.shortcut, "F2") << "edits a cell of the table";
    }
}

TEST(MenuTable, CheckMarksFollowTheState) {
    Settings settings;
    EXPECT_EQ(Checked(settings, {}),
              (Names{"t1", "Circolare", "Grafico", "Cor1", "p_bar", "Helpslinea"}));
    settings.Mode = WorkMode::SinglePipe;
    settings.SectionType = Section::Rectangular;
    settings.EquationType = Equation::Compressible;
    settings.PressureUnit = Unit::MilliBar;
    settings.ResultsInSequence = true;
    EXPECT_EQ(Checked(settings, {.HintsShown = false, .roughnessItem = "tt"}),
              (Names{"tt", "Rettangolare", "sintub", "Cor2", "p_mbar", "Risultatiseq"}));
}

}  // namespace
}  // namespace idrova
