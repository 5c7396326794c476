// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_edit.h"

#include <gtest/gtest.h>

#include <locale>
#include <memory>
#include <sstream>

#include "base/number_text.h"

namespace idrova {
namespace {

class TableEdit : public testing::Test {
  protected:
    /// "5.2=1.5;5.4=" types 1.5 into row 5, column 2, and empties column 4.
    void Type(const std::string& script) {
        std::istringstream edits(script);
        for (std::string edit; std::getline(edits, edit, ';');) {
            ChangeCell(*project, texts, std::stoi(edit), std::stoi(edit.substr(edit.find('.') + 1)),
                       edit.substr(edit.find('=') + 1));
        }
    }

    /// "5.2 5.4" gives the texts of these cells, "1.5||".
    std::string Shown(const std::string& cells) const {
        std::istringstream list(cells);
        list.imbue(std::locale::classic());
        std::string shown;
        char dot = 0;
        for (int row = 0, column = 0; list >> row >> dot >> column;) {
            shown += texts.At(row, column) + "|";
        }
        return shown;
    }

    TableRowRec& Row(int row) { return project->TableRows[row]; }

    std::unique_ptr<Project> project = std::make_unique<Project>();
    TableTexts texts;
};

TEST_F(TableEdit, EveryColumnFillsItsFieldInSiUnits) {
    Type("2.1= 1;2.2=2.5bar;2.3=2.5;2.4=0;2.6=53.8;2.7=12;2.8=7200;2.9=-1.5;2.10=x");
    const TableRowRec expected{1, 253312.5F, 2, 0, .0538F, 12, 2, -1.5F, 0, true, true, true};
    EXPECT_EQ(Row(2), expected);
}

TEST_F(TableEdit, EmptiedCellsAreUnknownAndPainted) {
    Type("4.2=3;4.8=100;4.7=7");
    EXPECT_FALSE(texts.IsPainted(4, 8));
    Type("4.2=;4.8=;4.7=");
    EXPECT_EQ(Row(4), TableRowRec());
    EXPECT_TRUE(texts.IsPainted(4, 2) && texts.IsPainted(4, 8));
    EXPECT_FALSE(texts.IsPainted(4, 7) || texts.IsPainted(1, 8));
}

TEST_F(TableEdit, PointNumberFetchesThePressureOfThePoint) {
    Type("2.3=3;2.4=2;7.1=9;7.2=0;5.1=3;5.3=9");
    EXPECT_EQ(Shown("5.2 5.4"), "2|0|");
    EXPECT_EQ(Row(5).StartPressure, 202650);
    EXPECT_TRUE(Row(5).P2Given) << "a zero that was typed is a given value here too";
    Type("8.1=4;9.3=4");
    EXPECT_EQ(Shown("8.2 9.4"), "||") << "and what is unknown stays unknown";
}

TEST_F(TableEdit, LastRowThatHasThePointDecidesForAll) {
    Row(3) = {.StartPoint = 8, .StartPressure = 101325, .P1Given = true};
    Row(9) = {.EndPoint = 8, .EndPressure = 303975, .P2Given = true};
    FillTable(*project, texts);
    Type("6.3=8");
    EXPECT_EQ(Shown("6.4 3.2 9.4"), "3|3|3|");
    EXPECT_EQ(Row(3).StartPressure, 303975);
}

TEST_F(TableEdit, PressureGoesToAllRowsOfThePoint) {
    Type("2.1=1;2.3=2;3.1=2;3.3=3;100.1=3;100.3=2;3.2=1.50");
    EXPECT_EQ(Shown("2.2 2.4 3.2 3.4 100.2 100.4"), "|1.5|1.50|||1.5|");
    Type("100.4=");
    EXPECT_EQ(Shown("2.4 3.2 100.4"), "|||");
    EXPECT_FALSE(Row(2).P2Given);
    Type("4.2=1;5.2=2;5.1=0");
    EXPECT_EQ(Shown("4.2 5.2"), "1|2|") << "rows without points are no rows of one point";
}

TEST_F(TableEdit, CopiesOfAPressureAreExact) {
    Type("2.1=1;3.3=1");
    for (int hundredths = 1; hundredths <= 20000; ++hundredths) {
        const std::string typed = GeneralText(hundredths / 100.0);
        Type("2.2=" + typed);
        ASSERT_EQ(Row(3).EndPressure, Row(2).StartPressure);
        ASSERT_EQ(texts.At(3, 4), typed);
    }
    Type("2.2=1.2345678;4.1=1");
    EXPECT_EQ(Row(4).StartPressure, Row(2).StartPressure);
}

TEST_F(TableEdit, CellsWithoutDataChangeNothing) {
    Type("1.1=4;2.0=4;101.7=4;2.11=4");
    EXPECT_EQ(texts, TableTexts());
    EXPECT_EQ(Row(101), TableRowRec());
    EXPECT_EQ(Shown("1.8 2.0 100.0"), "flow rate [kg/h]|2|100|");
}

TEST_F(TableEdit, NominalSizeSetsTheDiameter) {
    ChooseNominalSize(*project, texts, 5, 6);
    ChooseNominalSize(*project, texts, 5, 13);
    EXPECT_EQ(Shown("5.5 5.6"), "1 1/2\"|42.5|");
    EXPECT_EQ(Row(5).RowDiameter, .0425F);
}

TEST_F(TableEdit, FilledTableTypedAgainGivesTheSameRows) {
    project->PressureUnitFactor = kPascalPerMilliBar;
    Type("2.1=1;2.2=3.217;2.3=2;2.4=0;2.6=27.9;2.7=.35;2.8=1234.5;2.9=2.6");
    const TableRowRec typed = Row(2);
    EXPECT_NEAR(typed.StartPressure, 325.9625, 1e-4);
    TableTexts filled;
    FillTable(*project, filled);
    EXPECT_EQ(filled, texts);

    ClearTable(*project, texts);
    EXPECT_EQ(texts, TableTexts());
    EXPECT_EQ(Row(2), TableRowRec());
    for (int column = 1; column < kTableColumns; ++column) {
        ChangeCell(*project, texts, 2, column, filled.At(2, column));
    }
    EXPECT_EQ(Row(2), typed);
}

}  // namespace
}  // namespace idrova
