// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_edit.h"

#include <gtest/gtest.h>

#include <locale>
#include <memory>
#include <sstream>
#include <vector>

#include "base/number_text.h"
#include "table/messages.h"
#include "table/table_block.h"
#include "table/table_rows.h"

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

    void Clear() {
        project->TableRows.fill({});
        project->settings.PressureUnitFactor = kPascalPerBar;
        texts = TableTexts();
    }

    TableRowRec& Row(int row) { return project->TableRows[row]; }

    std::unique_ptr<Project> project = std::make_unique<Project>();
    TableTexts texts;
};

TEST_F(TableEdit, CellsFillTheirFieldsInSiUnits) {
    Type("2.1= 1;2.2=2.5bar;2.3=2.5;2.4=0;2.6=53.8;2.7=12;2.8=7200;2.9=-1.6;2.10=x");
    const TableRowRec expected{1, 253312.5F, 2, 0, .0538F, 12, 2, -2, 0, true, true, true};
    EXPECT_EQ(Row(2), expected);

    Type("4.3=3;4.8=100;4.7=7;4.8=;4.7=;5.1=x");
    EXPECT_EQ(Row(4), TableRowRec{.EndPoint = 3});
    EXPECT_TRUE(texts.IsPainted(4, 2) && texts.IsPainted(4, 8));
    EXPECT_FALSE(texts.IsPainted(4, 7) || texts.IsPainted(1, 8) || texts.IsPainted(2, 8));
    EXPECT_FALSE(texts.IsPainted(5, 2)) << "the row names no point";

    const TableTexts before = texts;
    Type("1.1=4;2.0=4;101.7=4;2.11=4");
    ChooseNominalSize(*project, texts, 1, 6);
    ChooseNominalSize(*project, texts, 2, 13);
    EXPECT_EQ(texts, before) << "no data cells, no such size";
    EXPECT_EQ(Row(101), TableRowRec());
    EXPECT_EQ(Shown("1.8 2.0 100.0"), "flow rate [kg/h]|1|99|");
    EXPECT_EQ(HeaderOf(project->settings, 2), "P1 [bar]");
}

TEST_F(TableEdit, TextsThatAreNoNumbersAreFramedAndStayAsTheyAre) {
    struct Case {
        std::string typed, shown;
        bool framed;
        std::string filled;  ///< once the table was filled anew in mbar
    };
    const std::vector<Case> cases = {{"2=3,5", "3.5", false, "3500"},
                                     {"7=53,8", "53.8", false, "53.8"},
                                     {"7= 1. ", " 1. ", false, "1"},
                                     {"2=1.000,5", "1.000,5", true, "1.000,5"},
                                     {"7=1,0,5", "1,0,5", true, "1,0,5"},
                                     {"8=x", "x", true, "x"},
                                     {"2=2.5bar", "2.5bar", true, "2.5bar"},
                                     {"9=12,7", "13", false, "13"},
                                     {"10=2.5", "2", false, "2"},
                                     {"9=12.7m", "12.7m", true, "12.7m"},
                                     {"5=2", "2\"", false, "2\""},
                                     {"5=DN50", "DN50", true, "DN50"}};
    for (const auto& [typed, shown, framed, filled] : cases) {
        Clear();
        const int column = std::stoi(typed);
        Type("3." + typed);
        EXPECT_EQ(texts.At(3, column), shown);
        EXPECT_EQ(texts.IsFramed(3, column), framed) << typed;
        project->settings.PressureUnitFactor = kPascalPerMilliBar;
        FillTable(*project, texts);
        EXPECT_EQ(texts.At(3, column), filled);
    }
}

TEST_F(TableEdit, DiameterAndNominalSizeFollowEachOther) {
    ChooseNominalSize(*project, texts, 5, 6);
    EXPECT_EQ(Shown("5.5 5.6"), "1 1/2\"|42.5|");
    EXPECT_EQ(Row(5).RowDiameter, .0425F);
    TableTexts reopened;
    FillTable(*project, reopened);
    EXPECT_EQ(reopened, texts);
    Type("5.6=60;6.6=53.8;7.5=1;8.5=4\";8.5=");
    EXPECT_EQ(Shown("5.5 6.5 7.5 7.6 8.5 8.6"), "|2\"|1\"|27.9||106.2|");
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
        {"3.1=2;4.2=5;4.1=2", "3.2 4.2", "5|5|"},  // typed before its point
        {"3.1=2;3.2=5;3.1=3", "3.2", "5|"},        // no other row has it
        {"3.1=2;3.2=5;4.3=2;4.3=3", "3.2 4.4", "5||"},  // fetched: of the point that is left
        {"3.1=2;3.2=5;4.3=2;4.3=;4.3=3", "3.2 4.4", "5||"},
        {"3.1=2;3.2=5;4.3=2;4.3=02", "3.2 4.4", "5|5|"},
    };
    for (const auto& [typed, cells, shown] : cases) {
        Clear();
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
        {"2.1=1", "1\t3\n1\t4\n2\t\t1\t5", "2.2 3.2 4.2 5.4", "5|3|4|5|"},  // contradictions
        {"", "1,5\t1.000,5", "3.1 3.2", "1.5|1.000,5|"},
        {"", "\t\t\t\t1 1/2\t\n\t\t\t\t2\"\t60", "3.5 3.6 4.5 4.6", "1 1/2\"|42.5||60|"},
        {"", "\"2\n\"\t\" 4\t5 \"\r\n \t6 \n", "3.1 3.2 4.1 4.2", "2|4 5||6|"},
        {"", "2\"\t\"1 1/2\"\"\" \t\"\"\n\"a\tb\"c", "3.1 3.2 3.3 4.1 4.2",
         R"(2"|1 1/2"||"a|b"c|)"},
    };
    for (const auto& [typed, pasted, cells, shown] : cases) {
        Clear();
        Type(typed);
        PasteBlock(*project, texts, {3, 1, 3, 1}, pasted);
        EXPECT_EQ(Shown(cells), shown) << pasted;
    }
}

TEST_F(TableEdit, ClearedRowsLeaveTheirPointsToTheOthers) {
    Type("2.1=1;2.2=3;2.3=2;2.4=5;3.1=2;3.3=1;4.1=2;4.3=1;3.5=2");
    ClearBlock(*project, texts, {3, 1, 4, 10});
    EXPECT_EQ(Shown("2.2 2.4"), "3|5|");
    EXPECT_EQ(Row(3), TableRowRec());
    EXPECT_EQ(Row(4), TableRowRec());
    EXPECT_TRUE(texts.IsEmptyRow(3) && texts.IsEmptyRow(4));
}

TEST_F(TableEdit, OneValueAndTheFirstRowFillABlockAndLossesAreCounted) {
    PasteBlock(*project, texts, {3, 6, 4, 7}, " 5,5 \n");
    EXPECT_EQ(Shown("3.6 3.7 4.6 4.7 5.6 4.8"), "5.5|5.5|5.5|5.5|||");
    Type("3.1=1;3.2=3;3.7=8");
    FillDown(*project, texts, {3, 1, 5, 7});
    EXPECT_EQ(CopyBlock(texts, {4, 1, 5, 7}), "1\t3\t\t\t\t5.5\t8\n1\t3\t\t\t\t5.5\t8\n");
    FillDown(*project, texts, {6, 7, 6, 7});
    EXPECT_EQ(Shown("6.6 6.7"), "|8|") << "a single row is filled from the one above";
    FillDown(*project, texts, {2, 1, 2, 7});
    EXPECT_EQ(Shown("2.1"), "|") << "the header fills nothing";
    const PasteLoss fits = LossOfPaste({99, 9, 99, 9}, "1\t2\t\n3\t4\n\t\n");
    EXPECT_EQ(fits.rowsLost + fits.columnsLost, 0) << "nothing but empty cells";
    const PasteLoss loss = LossOfPaste({99, 9, 99, 9}, "1\n\n3\t4\t5\n6");
    EXPECT_EQ(PartLeftOut(loss).text,
              "2 of 4 rows and 1 of 3 columns do not fit into the table. Do you want to paste the "
              "others ?");
}

TEST_F(TableEdit, RowsAreInsertedDeletedAndClosedUpWhole) {
    const auto points = [this] {
        std::string shown;
        for (int row = kFirstTableRow; row <= kLastTableRow; ++row) {
            if (texts.IsEmptyRow(row)) continue;
            shown += std::to_string(row) + ":" + texts.At(row, 1) + texts.At(row, 3) + " ";
            EXPECT_EQ(GeneralText(int{Row(row).StartPoint}), texts.At(row, 1));
        }
        return shown;
    };
    Type("2.1=1;2.3=2;3.1=2;3.3=3;5.1=3;5.3=4;98.1=4;98.3=5");
    EXPECT_EQ(NoteOfGap(*project, texts).text,
              "Rows 4, 97 stand below the empty row 3: they are not computed");
    EXPECT_FALSE(InsertRows(*project, texts, 2, 3)) << "row 98 would be lost";
    EXPECT_TRUE(InsertRows(*project, texts, 3, 2));
    EXPECT_EQ(points(), "2:12 5:23 7:34 100:45 ");
    DeleteRows(*project, texts, 3, 5);
    EXPECT_EQ(points(), "2:12 4:34 97:45 ");
    EXPECT_TRUE(NoteOfGap(*project, texts).canCloseUp);
    CloseUp(*project, texts);
    EXPECT_EQ(points(), "2:12 3:34 4:45 ");
    EXPECT_EQ(texts.At(4, 0) + NoteOfGap(*project, texts).text, "3");
    Type("3.1=0");
    EXPECT_EQ(NoteOfGap(*project, texts).text,
              "Row 3 stands below row 2, which lacks a point: it is not computed");
    EXPECT_FALSE(NoteOfGap(*project, texts).canCloseUp);
    ClearBlock(*project, texts, {3, 1, 3, 3});
    DeleteRows(*project, texts, 4, 100);
    EXPECT_EQ(points(), "2:12 ");
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
    Type("2.1=1;2.2=3.217;2.3=2;2.4=0;2.6=65.4;2.7=.35;2.8=8.1;2.9=2");
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
