// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/table_edit.h"

#include "table/messages.h"
#include "table_script.h"

namespace idrova {
namespace {

class TableEdit : public TableScript {};

TEST_F(TableEdit, CellsFillTheirFieldsInSiUnits) {
    Do("2.1= 1;2.2=2.5bar;2.3=2.5;2.4=0;2.6=53.8;2.7=12;2.8=7200;2.9=-1.6;2.10=x;2.11=.5");
    const TableRowRec expected{1, 253312.5F, 2, 0, .0538F, 12, 2, -2, 0, true, true, true, .5F};
    EXPECT_EQ(Row(2), expected);
    Do("4.3=3;4.8=100;4.7=7;4.8=;4.7=;5.1=x");
    EXPECT_EQ(Row(4), TableRowRec{.EndPoint = 3});
    EXPECT_TRUE(texts.IsPainted(4, 2) && texts.IsPainted(4, 8));
    EXPECT_FALSE(texts.IsPainted(4, 7) || texts.IsPainted(1, 8) || texts.IsPainted(2, 8));
    EXPECT_FALSE(texts.IsPainted(5, 2)) << "the row names no point";
    ChooseNominalSize(*project, texts, 5, 6);
    EXPECT_EQ(Row(5).RowDiameter, .0425F);

    const TableTexts before = texts;
    Do("1.1=4;2.0=4;101.7=4;2.12=4");
    ChooseNominalSize(*project, texts, 1, 6);
    ChooseNominalSize(*project, texts, 2, 13);
    EXPECT_EQ(texts, before) << "no data cells, no such size";
    EXPECT_EQ(Row(101), TableRowRec());
    EXPECT_EQ(Shown("1.8 2.0 100.0"), "flow rate [kg/h]|1|99|");
    EXPECT_EQ(HeaderOf(project->settings, 2) + HeaderOf(project->settings, kTableColumns + 3),
              "P1 [bar]p1 [bar]");
}

TEST_F(TableEdit, EditsFollowTheRulesOfTheCells) {
    for (const auto& edit : Cases(R"(
        2.3=3;2.4=2;7.1=9;7.2=0;5.1=3;5.3=9 # 5.2 5.4 # 2|0|
        8.1=4;9.3=4 # 8.2 9.4 # ||
        2.1=1;2.3=2;3.1=2;3.3=3;100.1=3;100.3=2;3.2=1.50 # 2.2 2.4 3.2 3.4 100.2 100.4 # |1.5|1.50|||1.5|
        3.1=2;3.2=1;100.3=2;100.4= # 3.2 100.4 # ||
        4.2=1;5.2=2;5.1=0 # 4.2 5.2 # 1|2|
        3.1=2;4.2=5;4.1=2 # 3.2 4.2 # 5|5|
        3.1=2;3.2=5;3.1=3 # 3.2 # 5|
        3.1=2;3.2=5;4.3=2;4.3=3 # 3.2 4.4 # 5||
        3.1=2;3.2=5;4.3=2;4.3=;4.3=3 # 3.2 4.4 # 5||
        3.1=2;3.2=5;4.3=2;4.3=02 # 3.2 4.4 # 5|5|
        2.1=1;2.2=3;2.3=2;3.1<1  2 /2  1 / # 2.2 2.4 3.2 3.4 4.2 4.4 # 3||3|||3|
        2.1=1;2.2=3;3.1=1;3.1<1  # 2.2 3.2 # ||
        2.1=1;2.2=3;3.1=1;4.1=2;4.2=5;3.1<2  # 2.2 3.2 4.2 # 3|5|5|
        2.1=1;2.2=3;3.1=1;4.1=2;4.2=5;3.1<9  # 2.2 3.2 4.2 # 3||5|
        2.1=1;3.1<1 3/1 4/2  1 5 # 2.2 3.2 4.2 5.4 # 5|3|4|5|
        3.1<1,5 1.000,5 # 3.1 3.2 # 1.5|1.000,5|
        5.5=1 1/2;6.6=60;7.6=53.8;8.5=4";8.5=;9.5=2;9.6=60 # 5.6 6.5 7.5 8.5 8.6 9.5 # 42.5||2"||106.2||
        3.5<1 /2" 60 # 3.5 3.6 4.5 4.6 # 1"|27.9||60|
        3.6-4.7<5,5 # 3.6 3.7 4.6 4.7 5.6 4.8 # 5.5|5.5|5.5|5.5|||
        3.1=1;3.2=3;3.7=8;3.1-5.7v;6.7v # 4.1 5.2 5.7 6.1 6.7 # 1|3|8||8|
        2.1v;4.7=8;5.7=9;4.7-6.7v # 2.1 5.7 6.7 # |8|8|
        2.1=1;2.2=3;2.3=2;2.4=5;3.1=2;3.3=1;3.5=2;4.1=2;3.1-4.10x # 2.2 2.4 3.1 3.4 3.6 4.2 # 3|5|||||
        2.1=1;3.1=2;3.7=x;98.1=4;2+9;3+2 # 2.1 3.1 5.1 5.7 98.1 100.1 # 1||2|x||4|
        2.1=1;3.1=2;5.1=3;100.1=4;3-4x # 2.1 3.1 98.1 99.1 3.0 # 1|3|4||2|
        3.1=2;3.3=3;5.7=x;99.1=4;^;4-100x # 2.1 2.3 3.7 4.1 4.0 # 2|3|x||3|)")) {
        Clear();
        Do(edit[0]);
        EXPECT_EQ(Shown(edit[1]), edit[2]) << edit[0];
        for (int row = kFirstTableRow; row <= kLastTableRow; ++row) {
            EXPECT_EQ(Row(row).StartPoint, ToInt16(ReadNumber(texts.At(row, 1)))) << edit[0];
            EXPECT_EQ(Row(row).P1Given, !texts.At(row, 2).empty()) << edit[0];
        }
    }
    Row(3) = {.StartPoint = 8, .StartPressure = 101325, .P1Given = true};
    Row(9) = {.EndPoint = 8, .EndPressure = 303975, .P2Given = true};
    FillTable(*project, texts);
    Do("6.3=8");
    EXPECT_EQ(Shown("6.4 3.2 9.4"), "3|3|3|") << "the last row that has the point decides";
    EXPECT_TRUE(Row(3).StartPressure == 303975 && Row(6).P2Given);
}

TEST_F(TableEdit, TextsThatAreNoNumbersAreFramedAndStayAsTheyAre) {
    // What is typed and what it becomes, then once the table is filled anew in mbar: if not framed.
    for (const auto& cell : Cases(R"(
        3.2=3,5 # 3.5| # 3500|
        3.7= 1.  #  1. | # 1|
        3.9=12,7 # 13| # 13|
        3.10=2.5 # 2| # 2|
        3.11=-1.5k # 0| # 0|
        3.5=2 # 2"| # 2"|
        3.2=1.000,5 # 1.000,5|
        3.7=1,0,5 # 1,0,5|
        3.8=x # x|
        3.2=2.5bar # 2.5bar|
        3.9=12.7m # 12.7m|
        3.6=DN5,5 # DN5.5|
        3.5=DN5,5 # DN5,5|)")) {
        Clear();
        Do(cell[0]);
        const std::string place = cell[0].substr(0, cell[0].find('='));
        EXPECT_EQ(Shown(place), cell[1]);
        EXPECT_EQ(texts.IsFramed(3, std::stoi(place.substr(2))), cell.size() == 2) << cell[0];
        project->settings.PressureUnitFactor = kPascalPerMilliBar;
        FillTable(*project, texts);
        EXPECT_EQ(Shown(place), cell.back());
    }
}

TEST_F(TableEdit, PastedTextIsThatOfTheSpreadsheet) {
    const std::string pasted = "\"2\n\"\t\" 4\"\"\t5 \"\r\n2\"\t\"1 1/2\"\"\" \t\"\"\n\"a\tb\"c";
    PasteBlock(*project, texts, {3, 1, 3, 1}, pasted);
    EXPECT_EQ(Shown("3.1 3.2 4.1 4.2 4.3 5.1 5.2"), R"(2|4" 5|2"|1 1/2"||"a|b"c|)");
    RowResults results;
    results.texts[4][0] = "7.0";
    EXPECT_EQ(CopyBlock(texts, results, {3, kTableColumns - 1, 4, kTableColumns}), "\t\n\t7.0\n");
    const PasteLoss fits = LossOfPaste({99, kTableColumns - 2, 99, 9}, "1\t2\t\n3\t4\n\t\n");
    EXPECT_EQ(fits.rowsLost + fits.columnsLost, 0) << "nothing but empty cells";
    EXPECT_EQ(PartLeftOut(LossOfPaste({99, kTableColumns - 2, 99, 9}, "1\n\n3\t4\t5\n6")).text,
              "2 of 4 rows and 1 of 3 columns do not fit into the table. Do you want to paste the "
              "others ?");
}

TEST_F(TableEdit, NumbersAreKeptToTheLastDigit) {
    Do("2.1=1;3.3=1");
    for (int hundredths = 1; hundredths <= 20000; ++hundredths) {
        const std::string typed = GeneralText(hundredths / 100.0);
        ChangeCell(*project, texts, 2, 2, typed);
        ASSERT_EQ(Row(3).EndPressure, Row(2).StartPressure);
        ASSERT_EQ(texts.At(3, 4), typed);
    }
    Do("2.2=1.2345678;4.1=1");
    EXPECT_EQ(Row(4).StartPressure, Row(2).StartPressure);

    Clear();
    project->settings.PressureUnitFactor = kPascalPerMilliBar;
    Do("2.1=1;2.2=3.217;2.3=2;2.4=0;2.6=53.8;2.7=.35;2.8=8.1;2.9=2");
    const TableRowRec typed = Row(2);
    EXPECT_NEAR(typed.StartPressure, 325.9625, 1e-4);
    const TableTexts shown = texts;
    texts = TableTexts();
    FillTable(*project, texts);
    EXPECT_EQ(texts, shown);
    Do("2.1-2.10x;2.1<1 3.217 2 0 2\" 53.8 .35 8.1 2 ");
    EXPECT_EQ(Row(2), typed);
}

}  // namespace
}  // namespace idrova
