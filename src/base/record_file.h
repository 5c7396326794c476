// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"

namespace idrova {

constexpr std::size_t kRecordBytes = 50;
constexpr std::size_t kMaxRecords = 50;

using RecordBytes = std::array<unsigned char, kRecordBytes>;

/// Fills one record: the name (2-byte length, then Latin-1), little-endian fields, zeros.
class RecordWriter {
  public:
    /// `latin1Name` must leave room for the fields that follow; see `NameForRecord`.
    explicit RecordWriter(std::string_view latin1Name);

    RecordWriter& Single(float value);
    RecordWriter& Int16(std::int16_t value);
    const RecordBytes& Bytes() const { return bytes_; }

  private:
    RecordBytes bytes_{};
    std::size_t at_ = 0;
};

/// Takes one record apart in the same order. A name that is too long or has control characters,
/// and a single that is not finite, make the record broken; the fields then read as empty and 0.
class RecordReader {
  public:
    /// `nameLimit` is the longest name, in bytes, that leaves room for the record's fields.
    RecordReader(const RecordBytes& bytes, std::size_t nameLimit);

    const std::string& Name() const { return name_; }  ///< UTF-8
    float Single();
    std::int16_t Int16();
    bool Broken() const { return broken_; }

  private:
    std::uint32_t Unsigned(std::size_t size);

    RecordBytes bytes_;
    std::string name_;
    std::size_t at_ = 0;
    bool broken_ = false;
};

/// `utf8Name` in the bytes a record holds; nothing when it is longer than `nameLimit`, has
/// characters that Latin-1 lacks, or control characters: a line end would tear a project file.
std::optional<std::string> NameForRecord(std::string_view utf8Name, std::size_t nameLimit);

struct RecordFile {
    std::vector<RecordBytes> records;  ///< the first `kMaxRecords` whole records at most
    bool partial = false;              ///< bytes are left over behind the last whole record
    bool tooMany = false;              ///< there are more than `kMaxRecords` records
};

/// Takes a file's content apart, and puts it together.
RecordFile SplitRecords(std::string_view bytes);
std::string JoinRecords(std::span<const RecordBytes> records);

/// The content of a record file; nothing, without creating it, when it is absent.
Result<std::string> ReadRecordBytes(const std::filesystem::path& path);

/// Creates an absent file empty; leaves anything else alone.
Status CreateIfAbsent(const std::filesystem::path& path);

/// Replaces the file safely by `bytes`. A file that does not hold `expected` is first kept as
/// "NAME.bak", or with a number behind that when there is one already; when that fails, or when it
/// cannot be read, it is left alone.
Status ReplaceRecordBytes(const std::filesystem::path& path, std::string_view expected,
                          std::string_view bytes);

}  // namespace idrova
