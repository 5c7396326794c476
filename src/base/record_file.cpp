// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/record_file.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <system_error>

#include "base/assertion.h"
#include "base/file.h"
#include "base/text_encoding.h"

namespace idrova {
namespace {

constexpr std::size_t kLargestFile = std::size_t{1024} * 1024;

void PutLittleEndian(RecordBytes& bytes, std::size_t& at, std::uint32_t value, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) {
        bytes.at(at++) = static_cast<unsigned char>(value >> (8 * i));
    }
}

bool HasControls(std::string_view latin1) {
    return std::any_of(latin1.begin(), latin1.end(), [](char c) {
        const auto code = static_cast<unsigned char>(c);
        return code < 0x20 || code == 0x7F;
    });
}

/// "NAME.bak", else the first of "NAME.bak1", "NAME.bak2" .. that does not exist.
std::filesystem::path FreeBackup(const std::filesystem::path& path) {
    std::filesystem::path backup = path;
    backup += ".bak";
    const std::string first = backup.string();
    std::error_code error;
    for (int number = 1; std::filesystem::exists(backup, error); ++number) {
        backup = first + std::to_string(number);
    }
    return backup;
}

bool IsAbsent(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::status(path, error).type() == std::filesystem::file_type::not_found;
}

}  // namespace

RecordWriter::RecordWriter(std::string_view latin1Name) {
    Assert(latin1Name.size() + 2 <= kRecordBytes);
    PutLittleEndian(bytes_, at_, static_cast<std::uint32_t>(latin1Name.size()), 2);
    for (const char c : latin1Name) bytes_.at(at_++) = static_cast<unsigned char>(c);
}

RecordWriter& RecordWriter::Single(float value) {
    PutLittleEndian(bytes_, at_, std::bit_cast<std::uint32_t>(value), 4);
    return *this;
}

RecordWriter& RecordWriter::Int16(std::int16_t value) {
    PutLittleEndian(bytes_, at_, static_cast<std::uint16_t>(value), 2);
    return *this;
}

RecordReader::RecordReader(const RecordBytes& bytes, std::size_t nameLimit) : bytes_(bytes) {
    const std::size_t length = Unsigned(2);
    if (length > nameLimit) {
        broken_ = true;
        return;
    }
    const auto* start = bytes_.data() + at_;
    const std::string name(start, start + length);
    if (HasControls(name)) {
        broken_ = true;
        return;
    }
    name_ = FromLatin1(name);
    at_ += length;
}

std::uint32_t RecordReader::Unsigned(std::size_t size) {
    if (broken_ || at_ + size > kRecordBytes) {
        broken_ = true;
        return 0;
    }
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < size; ++i) {
        value |= static_cast<std::uint32_t>(bytes_.at(at_++)) << (8 * i);
    }
    return value;
}

float RecordReader::Single() {
    const auto value = std::bit_cast<float>(Unsigned(4));
    if (std::isfinite(value)) return value;
    broken_ = true;
    return 0;
}

std::int16_t RecordReader::Int16() {
    return static_cast<std::int16_t>(Unsigned(2));
}

std::optional<std::string> NameForRecord(std::string_view utf8Name, std::size_t nameLimit) {
    std::optional<std::string> latin1 = ToLatin1(utf8Name);
    if (!latin1 || latin1->size() > nameLimit || HasControls(*latin1)) return std::nullopt;
    return latin1;
}

RecordFile SplitRecords(std::string_view bytes) {
    RecordFile file;
    const std::size_t whole = bytes.size() / kRecordBytes;
    file.partial = bytes.size() % kRecordBytes != 0;
    file.tooMany = whole > kMaxRecords;
    file.records.resize(std::min(whole, kMaxRecords));
    for (RecordBytes& record : file.records) {
        std::copy_n(bytes.begin(), kRecordBytes, record.begin());
        bytes.remove_prefix(kRecordBytes);
    }
    return file;
}

std::string JoinRecords(std::span<const RecordBytes> records) {
    std::string bytes;
    bytes.reserve(records.size() * kRecordBytes);
    for (const RecordBytes& record : records) bytes.append(record.begin(), record.end());
    return bytes;
}

Result<std::string> ReadRecordBytes(const std::filesystem::path& path) {
    if (IsAbsent(path)) return std::string();
    return ReadWholeFile(path, kLargestFile);
}

Status CreateIfAbsent(const std::filesystem::path& path) {
    return IsAbsent(path) ? WriteWholeFile(path, {}) : Status(Done{});
}

Status ReplaceRecordBytes(const std::filesystem::path& path, std::string_view expected,
                          std::string_view bytes) {
    const Result<std::string> old = ReadRecordBytes(path);
    if (!old) return Failure{old.Error()};
    if (!old->empty() && *old != expected) {
        if (Status copied = WriteWholeFile(FreeBackup(path), *old); !copied) return copied;
    }
    return WriteWholeFile(path, bytes);
}

}  // namespace idrova
