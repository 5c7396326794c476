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

TEST(MenuTable, CheckMarksAndWhatCanBeChosenFollowTheState) {
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
    for (const MenuEntry& entry : MenuTable()) {
        EXPECT_TRUE(IsEnabled(entry, WorkMode::Graphic));
        EXPECT_EQ(IsEnabled(entry, WorkMode::Table), entry.name != "Veloce");
    }
}

}  // namespace
}  // namespace idrova
