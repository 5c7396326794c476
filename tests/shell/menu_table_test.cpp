// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/menu_table.h"

#include <gtest/gtest.h>

#include <set>

#include "shell/recent_files.h"

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
              (Names{"t1", "Circolare", "Grafico", "Cor1", "p_bar", "Helpslinea", "BarraStrumenti",
                     "LabelsNone", "ColoursNone"}));
    settings.Mode = WorkMode::SinglePipe;
    settings.SectionType = Section::Rectangular;
    settings.EquationType = Equation::Compressible;
    settings.PressureUnit = Unit::MilliBar;
    settings.ResultsInSequence = true;
    EXPECT_EQ(Checked(settings, {.HintsShown = false,
                                 .ToolBarShown = false,
                                 .roughnessItem = "tt",
                                 .labelsItem = "LabelsFlows",
                                 .coloursItem = "ColoursFlows"}),
              (Names{"tt", "Rettangolare", "sintub", "Cor2", "p_mbar", "Risultatiseq",
                     "LabelsFlows", "ColoursFlows"}));
    for (const MenuEntry& entry : MenuTable()) {
        EXPECT_TRUE(IsEnabled(entry, WorkMode::Graphic));
        const bool drawing = entry.name == "Veloce" || entry.parent == "Labels" ||
                             entry.parent == "Colours" || entry.name.starts_with("Zoom");
        EXPECT_EQ(IsEnabled(entry, WorkMode::Table), !drawing) << entry.name;
    }
}

TEST(RecentFiles, TheLastTenStandOnceTheNewestFirst) {
    std::vector<std::string> files;
    for (int i = 0; i < 12; ++i) files = WithRecentFile(files, "/a/" + std::to_string(i));
    files = WithRecentFile(files, "/a/5");
    EXPECT_EQ(files.size(), 10U);
    EXPECT_EQ(files[0] + files[1] + files[9], "/a/5/a/11/a/2");
    EXPECT_EQ(RecentFileCaption(0, "/a&b/c&d.iv"), "&1 c&&d.iv - /a&&b");
    EXPECT_EQ(RecentFileCaption(9, "/c.iv"), "&0 c.iv - /");
}

}  // namespace
}  // namespace idrova
