// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <tuple>
#include <vector>

#include "base/assertion.h"
#include "base/number_text.h"
#include "base/print_zones.h"
#include "base/text_encoding.h"

namespace idrova {
namespace {

constexpr float kLargestSingle = std::numeric_limits<float>::max();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(GeneralText, WritesSinglesWithSevenDigitsAndDoublesWithFifteen) {
    // clang-format off
    const std::vector<std::pair<float, const char*>> cases = {
        {0.0F, "0"}, {-0.0F, "0"}, {12.0F, "12"}, {0.05F, ".05"}, {-0.5F, "-.5"},
        {998.2F, "998.2"}, {309862.4F, "309862.4"}, {0.00001F, "1E-05"}, {0.0001F, ".0001"},
        {0.00009999999F, "9.999999E-05"}, {0.000099999999F, ".0001"}, {12345678.0F, "1.234568E+07"},
        {9999999.0F, "9999999"}, {9999999.5F, "1E+07"}, {-10000000.0F, "-1E+07"},
        {1e-40F, "9.999946E-41"}, {kLargestSingle, "3.402823E+38"}};
    const std::vector<std::pair<double, const char*>> doubles = {
        {0.0001, ".0001"}, {0.00005, "5E-05"}, {1.0 / 3, ".333333333333333"}, {0.1 + 0.2, ".3"},
        {123456789012345.0, "123456789012345"}, {1e15, "1E+15"}, {999999999999999.5, "1E+15"},
        {-206574.9, "-206574.9"}, {1e-300, "1E-300"}};
    // clang-format on
    for (const auto& [value, text] : cases) EXPECT_EQ(GeneralText(value), text);
    for (const auto& [value, text] : doubles) EXPECT_EQ(GeneralText(value), text);
    EXPECT_EQ(StrText(-0.0) + StrText(-32768) + StrText(0.05), " 0-32768 .05");
}

TEST(FormatNumber, FollowsThePattern) {
    // clang-format off
    const std::vector<std::tuple<double, const char*, const char*>> cases = {
        {25, "###.##", "25."}, {0, "###.###", "."}, {-0.0004, "###.###", "."},
        {-0.0005, "###.###", "-.001"}, {0.0005, "###.###", ".001"}, {0.125, "#.##", ".13"},
        {-0.125, "#.##", "-.13"}, {1.005, "###.##", "1.01"}, {999.995, "###.##", "1000."},
        {123456.7891, "####.###", "123456.789"}, {50.10, "#####.##", "50.1"},
        {0.05, "##.###", ".05"}, {1e20, "###.##", "100000000000000000000."}, {1e-300, "###.##", "."},
        {0.001002, "0.000E+0", "1.002E-3"}, {1500, "0.000E+0", "1.500E+3"},
        {1500, "0.000E-0", "1.500E3"}, {0.001002, "0.000E-0", "1.002E-3"},
        {9.9996, "0.000E+0", "1.000E+1"}, {-0.00009995, "0.00E+0", "-1.00E-4"},
        {0, "0.00E+0", "0.00E+0"}, {-0.0, "0.000E-0", "0.000E0"}, {1234567, "0.00E+00", "1.23E+06"},
        {1e123, "0.00E+00", "1.00E+123"}, {kInfinity, "###.##", "inf"}};
    // clang-format on
    for (const auto& [value, pattern, text] : cases) {
        EXPECT_EQ(FormatNumber(value, pattern), text) << value << " in " << pattern;
    }
    EXPECT_EQ(FormatNumber(0.285F, "#.##"), ".29") << "a single by its decimal text";
    const std::vector<std::tuple<double, const char*, const char*>> plain = {
        {.05, "0.05", "0.05"},
        {-.001, "-0.001", "0.00"},
        {1234567.89, "1234568", "1234567.89"},
        {1.5e-5, "1.5e-05", "0.00"},
        {-0.0, "0", "0.00"},
        {-kInfinity, "", ""}};
    for (const auto& [value, text, twoDecimals] : plain) {
        EXPECT_EQ(PlainText(value), text);
        EXPECT_EQ(FixedText(value, 2), twoDecimals);
    }
}

TEST(ReadNumber, TakesTheLongestLeadingNumberAndParseNumberAll) {
    // clang-format off
    const std::vector<std::pair<const char*, double>> cases = {
        {"", 0}, {"abc", 0}, {".", 0}, {"-", 0}, {"12", 12}, {" \t12 m", 12}, {"12,5", 12},
        {".5", 0.5}, {"5.", 5}, {"-.5e1x", -5}, {"+3", 3}, {"+-3", 0}, {"1e", 1}, {"1e+", 1},
        {"1E-3", 0.001}, {"1.2.3", 1.2}, {"1.e2", 100}, {"0x10", 0}, {"inf", 0}, {"nan", 0},
        {"1e999", 0}, {"-1e-999", 0}, {"1e99999999999", 0}, {"\n7", 0}, {"- 5", 0}, {"1d5", 1}};
    // clang-format on
    for (const auto& [text, value] : cases) EXPECT_EQ(ReadNumber(text), value) << text;
    EXPECT_FALSE(std::signbit(ReadNumber("-0")));
    EXPECT_EQ(ParseNumber("-1.5E+2"), -150);
    for (const char* text : {"", " 1", "1 ", "2.6.3", "1e", "1e999", "nan", "+", "1,0"}) {
        EXPECT_EQ(ParseNumber(text), std::nullopt) << text;
    }
}

TEST(NumberText, RoundsHalvesToEvenAndClamps) {
    // clang-format off
    const std::vector<std::pair<double, int>> cases = {
        {0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {2.5000001, 3}, {32767.4, 32767},
        {32768, 32767}, {-40000, -32768}, {1e300, 32767}, {-kInfinity, -32768}, {std::nan(""), 0}};
    // clang-format on
    for (const auto& [value, whole] : cases) EXPECT_EQ(ToInt16(value), whole) << value;
    EXPECT_EQ(ToSingle(-kInfinity), -kLargestSingle);
    EXPECT_EQ(ToSingle(std::nan("")), 0.0F);
    EXPECT_EQ(DecimalDouble(998.2F), 998.2);
    for (int typed = 1; typed <= 20000; ++typed) {
        const double shown = typed / 10.0;
        for (const double factor : {3600.0, 1000.0, 3600 / 998.2}) {
            const auto stored = static_cast<float>(shown / factor);
            ASSERT_EQ(ScaledSingle(stored, factor), static_cast<float>(shown)) << factor;
        }
    }
    EXPECT_EQ(ScaledSingle(.5142785F, 1000), 514.2785F);
    EXPECT_EQ(ScaledSingle(kLargestSingle, 2), kLargestSingle);
}

TEST(Assert, EndsTheProgramInEveryBuildAndNamesThePlace) {
    Assert(true);
    EXPECT_DEATH(Assert(false), "text_test.cpp:[0-9]+: an assertion does not hold");
}

TEST(TextEncoding, GoesFromLatin1ToUtf8AndBackAndCountsCharacters) {
    std::string all;
    for (int code = 1; code < 256; ++code) all += static_cast<char>(code);
    const std::string utf8 = FromLatin1(all);
    EXPECT_EQ(ToLatin1(utf8), all);
    EXPECT_EQ(Utf8Length(utf8), 255U);
    EXPECT_EQ(FromLatin1("\xB0"), "°");
    PrintZoneWriter writer;
    EXPECT_EQ(Utf8Length(writer.Text("portata è 5 µ").NextZone().Bytes()), 14U);
    for (const char* text : {"€", "Ā", "日本", "a\xFF", "\xC3", "\xE2\x82"}) {
        EXPECT_EQ(ToLatin1(text), std::nullopt) << text;
    }
    for (const char* text : {"", "°C", "€", "\xF0\x9F\x92\xA7", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_TRUE(IsUtf8(text)) << text;
    }
    for (const char* text : {"\x80", "\xC0\x80", "\xC1\xBF", "\xE0\x80\x80", "\xED\xA0\x80",
                             "\xF0\x80\x80\x80", "\xF4\x90\x80\x80", "a\xE2\x82"}) {
        EXPECT_FALSE(IsUtf8(text)) << text;
    }
}

}  // namespace
}  // namespace idrova
