// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/menu_table.h"

#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <set>
#include <stdexcept>
#include <string>

namespace idrova {
namespace {

const MenuEntry& Entry(std::string_view name) {
    for (const MenuEntry& entry : MenuTable()) {
        if (entry.name == name && entry.kind != MenuKind::Menu) return entry;
    }
    throw std::out_of_range(std::string(name));
}

std::set<std::string> Checked(const Settings& settings, const ShellState& shell) {
    std::set<std::string> names;
    for (const MenuEntry& entry : MenuTable()) {
        if (IsChecked(entry, settings, shell)) names.insert(std::string(entry.name));
    }
    return names;
}

TEST(MenuTable, EveryEntryHangsInAMenuThatStandsBeforeIt) {
    std::set<std::string_view> menus{""};
    for (const MenuEntry& entry : MenuTable()) {
        EXPECT_TRUE(menus.contains(entry.parent)) << entry.name;
        if (entry.kind == MenuKind::Menu) menus.insert(entry.name);
    }
}

TEST(MenuTable, NamesAndShortcutsAreUnique) {
    std::set<std::pair<std::string_view, bool>> names;
    std::set<std::string_view> shortcuts;
    for (const MenuEntry& entry : MenuTable()) {
        EXPECT_TRUE(names.insert({entry.name, entry.kind == MenuKind::Menu}).second) << entry.name;
        if (entry.shortcut.empty()) continue;
        EXPECT_TRUE(shortcuts.insert(entry.shortcut).second) << entry.shortcut;
    }
}

TEST(MenuTable, MnemonicsAreLettersUniqueInTheirMenu) {
    std::map<std::string_view, std::string> lettersOf;
    for (const MenuEntry& entry : MenuTable()) {
        ASSERT_LT(entry.mnemonic, entry.caption.size()) << entry.name;
        const char letter = entry.caption[entry.mnemonic];
        ASSERT_TRUE(std::isalpha(static_cast<unsigned char>(letter))) << entry.name;
        std::string& letters = lettersOf[entry.parent];
        const char folded = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
        EXPECT_EQ(letters.find(folded), std::string::npos) << entry.parent << ": " << entry.name;
        letters += folded;
    }
}

TEST(MenuTable, MnemonicMarkLeavesTheCaptionAsItReads) {
    EXPECT_EQ(CaptionWithMnemonic(Entry("Nuovo")), "&New");
    EXPECT_EQ(CaptionWithMnemonic(Entry("Salva2")), "Save &as");
    EXPECT_EQ(CaptionWithMnemonic(Entry("t5")), "strong &incrostations");
}

TEST(MenuTable, CheckMarksAtStartAreThoseOfTheStartState) {
    std::set<std::string> marked;
    for (const MenuEntry& entry : MenuTable()) {
        if (entry.checkedAtStart) marked.insert(std::string(entry.name));
    }
    EXPECT_EQ(Checked({}, {}), marked);
    EXPECT_EQ(marked,
              (std::set<std::string>{"t1", "Circolare", "Grafico", "Cor1", "p_bar", "Helpslinea"}));
}

TEST(MenuTable, CheckMarksFollowTheState) {
    Settings settings;
    settings.Mode = WorkMode::SinglePipe;
    settings.SectionType = Section::Rectangular;
    settings.EquationType = Equation::Compressible;
    settings.PressureUnit = Unit::MilliBar;
    settings.ResultsInSequence = true;
    const ShellState shell{.HintsShown = false, .roughnessItem = "tt"};
    EXPECT_EQ(Checked(settings, shell), (std::set<std::string>{"tt", "Rettangolare", "sintub",
                                                               "Cor2", "p_mbar", "Risultatiseq"}));
    settings.Mode = WorkMode::Table;
    EXPECT_TRUE(IsChecked(Entry("Tabella"), settings, shell));
}

}  // namespace
}  // namespace idrova
