// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace idrova {
namespace {

/// A decimal number as digits d1 d2 .. and the exponent of d1: d1.d2.. x 10^exponent.
/// No digits stand for zero.
struct Decimal {
    bool negative = false;
    std::string digits;
    int exponent = 0;
};

using ConversionBuffer = std::array<char, 64>;

/// Takes apart "-1.234e+05" as std::to_chars writes it; drops trailing zeros.
Decimal FromScientific(std::string_view text) {
    Decimal decimal;
    if (text.front() == '-') {
        decimal.negative = true;
        text.remove_prefix(1);
    }
    const std::size_t mark = text.find('e');
    for (const char c : text.substr(0, mark)) {
        if (c != '.') decimal.digits += c;
    }
    std::string_view exponent = text.substr(mark + 1);
    if (exponent.front() == '+') exponent.remove_prefix(1);
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.exponent);
    decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
    return decimal;
}

template <typename Number>
Decimal ShortestDecimal(Number value) {
    ConversionBuffer buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::scientific);
    return FromScientific({buffer.data(), end.ptr});
}

template <typename Number>
Decimal RoundedDecimal(Number value, int significantDigits) {
    ConversionBuffer buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::scientific, significantDigits - 1);
    return FromScientific({buffer.data(), end.ptr});
}

double RoundedTo(double value, int significantDigits) {
    ConversionBuffer buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::scientific, significantDigits - 1);
    std::from_chars(buffer.data(), end.ptr, value);
    return value;
}

/// Keeps the first `count` digits (count may be 0 or less), rounding half away from zero.
void RoundToDigits(Decimal& decimal, int count) {
    if (count >= static_cast<int>(decimal.digits.size())) return;
    const bool up = count >= 0 && decimal.digits[static_cast<std::size_t>(count)] >= '5';
    decimal.digits.resize(static_cast<std::size_t>(std::max(count, 0)));
    if (up) {
        while (!decimal.digits.empty() && decimal.digits.back() == '9') decimal.digits.pop_back();
        if (decimal.digits.empty()) {
            decimal.digits = "1";
            ++decimal.exponent;
        } else {
            ++decimal.digits.back();
        }
    }
    decimal.digits.erase(decimal.digits.find_last_not_of('0') + 1);
}

/// Integer digits without a leading zero, and the decimals behind the point.
struct PositionalDigits {
    std::string whole;
    std::string decimals;
};

PositionalDigits Positional(const Decimal& decimal) {
    PositionalDigits result;
    if (decimal.digits.empty()) return result;
    const int wholeCount = decimal.exponent + 1;
    if (wholeCount <= 0) {
        result.decimals = std::string(static_cast<std::size_t>(-wholeCount), '0') + decimal.digits;
        return result;
    }
    const auto count = static_cast<std::size_t>(wholeCount);
    result.whole = decimal.digits.substr(0, count);
    result.whole.resize(count, '0');
    if (decimal.digits.size() > count) result.decimals = decimal.digits.substr(count);
    return result;
}

std::string ExponentDigits(int exponent, std::size_t minimumDigits) {
    std::string digits = std::to_string(std::abs(exponent));
    if (digits.size() < minimumDigits) digits.insert(0, minimumDigits - digits.size(), '0');
    return digits;
}

template <typename Number>
std::string NotFiniteText(Number value) {
    if (std::isnan(value)) return "nan";
    return value < 0 ? "-inf" : "inf";
}

template <typename Number>
std::string GeneralForm(Number value, int significantDigits) {
    if (!std::isfinite(value)) return NotFiniteText(value);
    const Decimal decimal = RoundedDecimal(value, significantDigits);
    if (decimal.digits.empty()) return "0";
    std::string text = decimal.negative ? "-" : "";
    if (decimal.exponent < -4 || decimal.exponent >= significantDigits) {
        text += decimal.digits.front();
        if (decimal.digits.size() > 1) text += "." + decimal.digits.substr(1);
        text += decimal.exponent < 0 ? "E-" : "E+";
        return text + ExponentDigits(decimal.exponent, 2);
    }
    const PositionalDigits digits = Positional(decimal);
    text += digits.whole;
    if (!digits.decimals.empty()) text += "." + digits.decimals;
    return text;
}

std::string ExponentPattern(Decimal decimal, std::string_view pattern) {
    const std::size_t mark = pattern.find('E');
    const std::size_t decimals = mark - pattern.find('.') - 1;
    const bool signAlways = pattern[mark + 1] == '+';
    RoundToDigits(decimal, static_cast<int>(decimals) + 1);
    if (decimal.digits.empty()) decimal = {};
    decimal.digits.resize(decimals + 1, '0');
    std::string text = decimal.negative ? "-" : "";
    text += decimal.digits.substr(0, 1) + "." + decimal.digits.substr(1) + "E";
    if (decimal.exponent < 0) {
        text += "-";
    } else if (signAlways) {
        text += "+";
    }
    return text + ExponentDigits(decimal.exponent, pattern.size() - mark - 2);
}

std::string DigitPattern(Decimal decimal, std::string_view pattern) {
    const int decimals = static_cast<int>(pattern.size() - pattern.find('.') - 1);
    RoundToDigits(decimal, decimal.exponent + 1 + decimals);
    const PositionalDigits digits = Positional(decimal);
    const bool minus = decimal.negative && !decimal.digits.empty();
    return (minus ? "-" : "") + digits.whole + "." + digits.decimals;
}

template <typename Number>
std::string FormatDecimal(Number value, std::string_view pattern) {
    if (!std::isfinite(value)) return NotFiniteText(value);
    const Decimal decimal = ShortestDecimal(value);
    const bool exponent = pattern.find('E') != std::string_view::npos;
    return exponent ? ExponentPattern(decimal, pattern) : DigitPattern(decimal, pattern);
}

std::string PlainForm(double value, std::chars_format form, int precision) {
    if (!std::isfinite(value)) return "";
    std::array<char, 400> buffer{};  // holds the largest double with its decimals
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, form, precision);
    std::string text(buffer.data(), end.ptr);
    const bool isZero = text.find_first_of("123456789") == std::string::npos;
    return isZero && text.front() == '-' ? text.substr(1) : text;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t CountDigits(std::string_view text, std::size_t from) {
    std::size_t end = from;
    while (end < text.size() && IsDigit(text[end])) ++end;
    return end - from;
}

/// Length of the decimal number that `text` begins with (no blanks before it); 0 when none.
std::size_t NumberLength(std::string_view text) {
    std::size_t at = !text.empty() && (text.front() == '-' || text.front() == '+') ? 1 : 0;
    const std::size_t whole = CountDigits(text, at);
    at += whole;
    std::size_t decimals = 0;
    if (at < text.size() && text[at] == '.') {
        decimals = CountDigits(text, at + 1);
        if (whole + decimals > 0) at += 1 + decimals;
    }
    if (whole + decimals == 0) return 0;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        std::size_t exponent = at + 1;
        if (exponent < text.size() && (text[exponent] == '-' || text[exponent] == '+')) ++exponent;
        const std::size_t digits = CountDigits(text, exponent);
        if (digits > 0) at = exponent + digits;
    }
    return at;
}

std::optional<double> Convert(std::string_view number) {
    if (number.front() == '+') number.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec != std::errc()) return std::nullopt;
    return value == 0 ? 0.0 : value;
}

}  // namespace

std::string GeneralText(float value) {
    return GeneralForm(value, 7);
}

std::string GeneralText(double value) {
    return GeneralForm(value, 15);
}

std::string GeneralText(int value) {
    return std::to_string(value);
}

std::string FormatNumber(double value, std::string_view pattern) {
    return FormatDecimal(value, pattern);
}

std::string FormatNumber(float value, std::string_view pattern) {
    return FormatDecimal(value, pattern);
}

std::string PlainText(double value) {
    constexpr int kSingleDigits = 7;
    return PlainForm(value, std::chars_format::general, kSingleDigits);
}

std::string FixedText(double value, int decimals) {
    return PlainForm(value, std::chars_format::fixed, decimals);
}

double ReadNumber(std::string_view text) {
    const std::size_t start = text.find_first_not_of(" \t");
    if (start == std::string_view::npos) return 0;
    text.remove_prefix(start);
    const std::size_t length = NumberLength(text);
    return length == 0 ? 0 : Convert(text.substr(0, length)).value_or(0);
}

std::optional<double> ParseNumber(std::string_view text) {
    const std::size_t length = NumberLength(text);
    if (length == 0 || length != text.size()) return std::nullopt;
    return Convert(text);
}

std::int16_t ToInt16(double value) {
    if (std::isnan(value)) return 0;
    using Limits = std::numeric_limits<std::int16_t>;
    const double clamped = std::clamp<double>(value, Limits::min(), Limits::max());
    return static_cast<std::int16_t>(std::nearbyint(clamped));
}

double DecimalDouble(float value) {
    if (!std::isfinite(value)) return value;
    ConversionBuffer buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    double result = 0;
    std::from_chars(buffer.data(), end.ptr, result);
    return result;
}

float ToSingle(double value) {
    if (std::isnan(value)) return 0;
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -largest, largest));
}

float ScaledSingle(float value, double factor) {
    constexpr int kSingleDigits = 7;
    const double scaled = static_cast<double>(value) * factor;
    for (int digits = 1; digits < kSingleDigits; ++digits) {
        const double typed = RoundedTo(scaled, digits);
        if (ToSingle(typed / factor) == value) return ToSingle(typed);
    }
    return ToSingle(DecimalDouble(value) * factor);
}

}  // namespace idrova
