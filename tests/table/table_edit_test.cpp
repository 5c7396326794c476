// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_edit.h"

#include <gtest/gtest.h>

#include <locale>
#include <memory>
#include <sstream>
#include <vector>

#include "base/number_text.h"
#include "table/table_block.h"

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

TEST_F(TableEdit, CellsFillTheirFieldsInSiUnits) {
    Type("2.1= 1;2.2=2.5bar;2.3=2.5;2.4=0;2.6=53.8;2.7=12;2.8=7200;2.9=-1.5;2.10=x");
    const TableRowRec expected{1, 253312.5F, 2, 0, .0538F, 12, 2, -1.5F, 0, true, true, true};
    EXPECT_EQ(Row(2), expected);

    Type("4.2=3;4.8=100;4.7=7;4.2=;4.8=;4.7=");
    EXPECT_EQ(Row(4), TableRowRec());
    EXPECT_TRUE(texts.IsPainted(4, 2) && texts.IsPainted(4, 8));
    EXPECT_FALSE(texts.IsPainted(4, 7) || texts.IsPainted(1, 8) || texts.IsPainted(2, 8));

    ChooseNominalSize(*project, texts, 5, 6);
    ChooseNominalSize(*project, texts, 5, 13);
    EXPECT_EQ(Shown("5.5 5.6"), "1 1/2\"|42.5|");
    EXPECT_EQ(Row(5).RowDiameter, .0425F);

    const TableTexts before = texts;
    Type("1.1=4;2.0=4;101.7=4;2.11=4");
    EXPECT_EQ(texts, before) << "no data cells";
    EXPECT_EQ(Row(101), TableRowRec());
    EXPECT_EQ(Shown("1.8 2.0 100.0"), "flow rate [kg/h]|2|100|");
}

TEST_F(TableEdit, RowsOfOnePointKeepOnePressure) {
    struct Case {
        std::string typed, cells, shown;
    };
    const std::vector<Case> cases = {
        {"2.3=3;2.4=2;7.1=9;7.2=0;5.1=3;5.3=9", "5.2 5.4", "2|0|"},  // fetched, zeros too
        {"8.1=4;9.3=4", "8.2 9.4", "||"},
        {"2.1=1;2.3=2;3.1=2;3.3=3;100.1=3;100.3=2;3.2=1.50", "2.2 2.4 3.2 3.4 100.2 100.4",
         "|1.5|1.50|||1.5|"},
        {"3.1=2;3.2=1;100.3=2;100.4=", "3.2 100.4", "||"},
        {"4.2=1;5.2=2;5.1=0", "4.2 5.2", "1|2|"},  // rows without points are no rows of one point
    };
    for (const auto& [typed, cells, shown] : cases) {
        project->TableRows.fill({});
        texts = TableTexts();
        Type(typed);
        EXPECT_EQ(Shown(cells), shown) << typed;
    }
    Row(3) = {.StartPoint = 8, .StartPressure = 101325, .P1Given = true};
    Row(9) = {.EndPoint = 8, .EndPressure = 303975, .P2Given = true};
    FillTable(*project, texts);
    Type("6.3=8");
    EXPECT_EQ(Shown("6.4 3.2 9.4"), "3|3|3|") << "the last row that has the point decides";
    EXPECT_TRUE(Row(3).StartPressure == 303975 && Row(6).P2Given);
}

TEST_F(TableEdit, PastedCellsAreThoseOfTheSpreadsheetAndFetchPressures) {
    struct Case {
        std::string typed, pasted, cells, shown;
    };
    const std::vector<Case> cases = {
        {"2.1=1;2.2=3;2.3=2", "1\t\t2\t \n2\t\t1\t\n", "2.2 2.4 3.2 3.4 4.2 4.4", "3||3|||3|"},
        {"2.1=1;2.2=3;3.1=1", "1\t", "2.2 3.2", "||"},  // a pressure that was there is emptied
        {"2.1=1;2.2=3;3.1=1;4.1=2;4.2=5", "2\t", "2.2 3.2 4.2",
         "3|5|5|"},  // not of the points left
        {"2.1=1;2.2=3;3.1=1;4.1=2;4.2=5", "9\t", "2.2 3.2 4.2", "3||5|"},
        {"", "\"2\n\"\t\" 4\t5 \"\r\n \t6 \n", "3.1 3.2 4.1 4.2", "2|4 5||6|"},
        {"", "2\"\t\"1 1/2\"\"\" \t\"\"\n\"a\tb\"c", "3.1 3.2 3.3 4.1 4.2",
         R"(2"|1 1/2"||"a|b"c|)"},
    };
    for (const auto& [typed, pasted, cells, shown] : cases) {
        project->TableRows.fill({});
        texts = TableTexts();
        Type(typed);
        PasteBlock(*project, texts, 3, 1, pasted);
        EXPECT_EQ(Shown(cells), shown) << pasted;
    }
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

TEST_F(TableEdit, FilledTableTypedAgainGivesTheSameRows) {
    project->settings.PressureUnitFactor = kPascalPerMilliBar;
    Type("2.1=1;2.2=3.217;2.3=2;2.4=0;2.6=65.4;2.7=.35;2.8=8.1;2.9=2.6");
    const TableRowRec typed = Row(2);
    EXPECT_NEAR(typed.StartPressure, 325.9625, 1e-4);
    TableTexts filled;
    FillTable(*project, filled);
    EXPECT_EQ(filled, texts);

    texts = TableTexts();
    Row(2) = TableRowRec();
    for (int column = 1; column < kTableColumns; ++column) {
        ChangeCell(*project, texts, 2, column, filled.At(2, column));
    }
    EXPECT_EQ(Row(2), typed);
}

}  // namespace
}  // namespace idrova
