// SPDX-License-Identifier: GPL-3.0-or-later
#include "projectfile/project_lines.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/number_text.h"
#include "base/text_encoding.h"

namespace idrova {
namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view WithoutCarriageReturn(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

/// Cuts the first blank-separated item off `line`; empty when there is none.
std::string_view CutItem(std::string_view& line) {
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    const std::string_view item = line.substr(0, line.find_first_of(kBlanks));
    line.remove_prefix(item.size());
    return item;
}

/// `bytes` as UTF-8: as they are when they are valid, else read as Latin-1.
std::string TextFromFile(std::string_view bytes) {
    return IsUtf8(bytes) ? std::string(bytes) : FromLatin1(bytes);
}

}  // namespace

void ProjectLines::FailAt(int line, std::string_view reason) {
    if (fault_) return;
    fault_ = "line " + GeneralText(line) + ": " + std::string(reason);
    rest_ = {};
    items_ = {};
}

void ProjectLines::FailItem(std::string_view reason) {
    Fail("item " + GeneralText(static_cast<int>(item_)) + " " + std::string(reason));
}

std::string_view ProjectLines::NextLine() {
    ++line_;
    const std::size_t end = rest_.find('\n');
    const std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    return WithoutCarriageReturn(line);
}

std::string_view ProjectLines::Line() {
    if (fault_) return {};
    if (rest_.find('\n') == std::string_view::npos) {
        const bool missing = rest_.empty();
        FailAt(line_ + 1, missing ? "the line is missing" : "the file ends inside the line");
        return {};
    }
    return NextLine();
}

void ProjectLines::Key() {
    std::string_view line = Line();
    if (ParseNumber(CutItem(line))) Fail("a key expected, found a number");
}

std::string ProjectLines::Text() {
    return TextFromFile(Line());
}

std::string ProjectLines::LastText() {
    return fault_ ? std::string() : TextFromFile(NextLine());
}

bool ProjectLines::PassKey(std::string_view key) {
    if (WithoutCarriageReturn(rest_.substr(0, rest_.find('\n'))) != key) return false;
    NextLine();
    return true;
}

void ProjectLines::Numbers(std::size_t count) {
    std::string_view line = Line();
    if (fault_) return;
    item_ = 0;
    std::size_t found = 0;
    for (std::string_view item = CutItem(line); !item.empty(); item = CutItem(line)) {
        if (found < count) items_.at(found) = item;
        if (++found > count) break;
    }
    if (found == count) return;
    Fail(GeneralText(static_cast<int>(count)) + " items expected, " +
         (found < count ? "found " + GeneralText(static_cast<int>(found)) : "found more"));
}

std::optional<double> ProjectLines::Item() {
    if (fault_) return std::nullopt;
    const std::optional<double> value = ParseNumber(items_.at(item_++));
    if (!value) FailItem("is not a number");
    return value;
}

int ProjectLines::Whole(int lowest, int highest) {
    const std::optional<double> value = Item();
    if (!value) return 0;
    if (*value >= lowest && *value <= highest && *value == std::floor(*value)) {
        return static_cast<int>(*value);
    }
    FailItem("must be a whole number from " + GeneralText(lowest) + " to " + GeneralText(highest));
    return 0;
}

std::int16_t ProjectLines::Int16() {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(Whole(Limits::min(), Limits::max()));
}

float ProjectLines::Single() {
    const std::optional<double> value = Item();
    if (!value) return 0;
    if (std::abs(*value) <= static_cast<double>(std::numeric_limits<float>::max())) {
        return static_cast<float>(*value);
    }
    FailItem("is too large");
    return 0;
}

int ProjectLines::Count(int capacity) {
    Numbers(1);
    return Whole(0, capacity);
}

bool ProjectLines::Flag() {
    Numbers(1);
    return Int16() == 1;
}

}  // namespace idrova
