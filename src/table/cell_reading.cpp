// SPDX-License-Identifier: GPL-3.0-or-later
#include "table/cell_reading.h"

#include <algorithm>

#include "base/number_text.h"
#include "model/pipe_sizes.h"
#include "table/table_columns.h"

namespace idrova {
namespace {

using namespace table_column;

std::string WithDecimalPoint(std::string_view typed) {
    std::string text(typed);
    const bool isDecimalComma =
        std::ranges::count(text, ',') == 1 && text.find('.') == std::string::npos;
    if (isDecimalComma) text[text.find(',')] = '.';
    return text;
}

std::string_view WithoutBlanks(std::string_view text) {
    constexpr std::string_view blanks = " \t";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

}  // namespace

std::string CellText(int column, std::string_view typed) {
    if (column == kNominalSize) return std::string(typed);
    std::string text = WithDecimalPoint(typed);
    if (column == kLossSum && ReadNumber(text) < 0) return "0";
    if (column != kZ1 && column != kZ2) return text;
    const auto height = ParseNumber(WithoutBlanks(text));
    if (!height || *height == ToInt16(*height)) return text;
    return GeneralText(int{ToInt16(*height)});
}

bool IsWholeCell(int column, std::string_view text) {
    text = WithoutBlanks(text);
    if (text.empty() || column == kNumber) return true;
    return column == kNominalSize ? NominalSizeNamed(text) != 0 : ParseNumber(text).has_value();
}

int NominalSizeNamed(std::string_view text) {
    if (text.ends_with('"')) text.remove_suffix(1);
    if (text.empty()) return 0;
    const auto* const name = std::ranges::find(NominalSizeNames, text);
    return name == NominalSizeNames.end() ? 0 : static_cast<int>(name - NominalSizeNames.begin());
}

}  // namespace idrova
