// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/record_file.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace idrova {
namespace {

constexpr std::size_t kLimit = 42;

TEST(RecordReader, TakesBackWhatWasWritten) {
    const RecordWriter writer =
        RecordWriter(*NameForRecord("acqua 20 °C", kLimit)).Single(-998.2F).Int16(-1);
    RecordReader reader(writer.Bytes(), kLimit);
    EXPECT_EQ(reader.Name(), "acqua 20 °C");
    EXPECT_EQ(reader.Single(), -998.2F);
    EXPECT_EQ(reader.Int16(), -1);
    EXPECT_FALSE(reader.Broken());
}

TEST(RecordReader, CallsARecordBroken) {
    RecordBytes hugeName{};
    hugeName[1] = 0xFF;
    const float infinity = std::numeric_limits<float>::infinity();
    const std::vector<RecordBytes> cases = {
        hugeName, RecordWriter(std::string(kLimit + 1, 'n')).Bytes(),
        RecordWriter("line\nend").Bytes(), RecordWriter("a").Single(infinity).Bytes(),
        RecordWriter("a").Single(std::numeric_limits<float>::quiet_NaN()).Bytes()};
    for (const RecordBytes& bytes : cases) {
        RecordReader reader(bytes, kLimit);
        EXPECT_EQ(reader.Single(), 0.0F);
        EXPECT_TRUE(reader.Broken());
    }
    RecordReader pastTheEnd(RecordBytes{}, 48);
    for (int i = 0; i < 12; ++i) pastTheEnd.Single();
    EXPECT_FALSE(pastTheEnd.Broken());
    pastTheEnd.Single();
    EXPECT_TRUE(pastTheEnd.Broken());
}

TEST(NameForRecord, CountsLatin1Characters) {
    EXPECT_EQ(NameForRecord("", 3), "");
    EXPECT_EQ(NameForRecord("àèò", 3), "\xE0\xE8\xF2");
    for (const char* name : {"abcd", "€", "a\tb", "\x7F"}) {
        EXPECT_EQ(NameForRecord(name, 3), std::nullopt) << name;
    }
}

}  // namespace
}  // namespace idrova
