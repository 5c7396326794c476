// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <vector>

#include "base/print_zones.h"
#include "base/text_encoding.h"

namespace idrova {
namespace {

TEST(PrintZones, StartItemsEveryFourteenColumns) {
    PrintZoneWriter writer;
    writer.Number(12).NextZone().Number(3.5F).EndLine();
    EXPECT_EQ(writer.Bytes(), " 12 " + std::string(10, ' ') + " 3.5 \r\n");
}

TEST(PrintZones, FollowLongItemsWithTheNextFreeZone) {
    // clang-format off
    const std::vector<std::pair<const char*, std::size_t>> cases = {
        {"", 14}, {"1234567890123", 14}, {"12345678901234", 28}, {"123456789012345", 28},
        {"portata è 5 µ", 14}};
    // clang-format on
    for (const auto& [item, nextColumn] : cases) {
        PrintZoneWriter writer;
        writer.Text(item).NextZone();
        EXPECT_EQ(Utf8Length(writer.Bytes()), nextColumn) << item;
    }
}

TEST(PrintZones, CountColumnsAnewOnEachLine) {
    PrintZoneWriter writer;
    writer.Text("a").Number(-1).Number(0.25).EndLine().Text("b").NextZone().Text("c").EndLine();
    EXPECT_EQ(writer.Bytes(), "a-1  .25 \r\nb             c\r\n");
}

TEST(Latin1, GoesToUtf8AndBack) {
    std::string all;
    for (int code = 1; code < 256; ++code) all += static_cast<char>(code);
    const std::string utf8 = FromLatin1(all);
    EXPECT_EQ(ToLatin1(utf8), all);
    EXPECT_EQ(Utf8Length(utf8), 255U);
    EXPECT_TRUE(IsUtf8(utf8));
    EXPECT_EQ(FromLatin1("\xB0"), "°");
}

TEST(Latin1, RefusesWhatItCannotHold) {
    for (const char* text : {"€", "Ā", "日本", "a\xFF", "\xC3", "\xE2\x82"}) {
        EXPECT_EQ(ToLatin1(text), std::nullopt) << text;
    }
}

TEST(Utf8, IsRecognised) {
    const std::vector<const char*> valid = {
        "", "plain", "°C", "€", "\xF0\x9F\x92\xA7", "\xF4\x8F\xBF\xBF"};
    for (const char* text : valid) EXPECT_TRUE(IsUtf8(text)) << text;
    const std::vector<const char*> broken = {"\x80",         "\xC0\x80",         "\xC1\xBF",
                                             "\xE0\x80\x80", "\xED\xA0\x80",     "\xF0\x80\x80\x80",
                                             "\xF5\x80\x80", "\xF4\x90\x80\x80", "a\xE2\x82"};
    for (const char* text : broken) EXPECT_FALSE(IsUtf8(text)) << text;
    EXPECT_EQ(Utf8Length("a\xE2\x82z"), 4U);
}

}  // namespace
}  // namespace idrova
