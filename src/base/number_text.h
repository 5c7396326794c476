// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace idrova {

/// Numbers as text and back. Always the period, never the machine's locale.

/// General form: up to 7 significant digits for a single, 15 for a double, no zero before the
/// point (".05"), exponent form ("1E-05") when the rounded value is below 0.0001 or has more
/// integer digits than that. Never a leading blank; a negative zero is written "0".
std::string GeneralText(float value);
std::string GeneralText(double value);
std::string GeneralText(int value);

/// `GeneralText` with a leading blank in the place of the sign when `value` is not negative.
template <typename Number>
std::string StrText(Number value) {
    const std::string text = GeneralText(value);
    return text.front() == '-' ? text : " " + text;
}

/// `value` in a digit pattern. "#" patterns ("###.##") print at most the decimals they name, every
/// integer digit, no zero before the point and always the point; exponent patterns ("0.000E+0",
/// "0.00E+00", "0.000E-0") print the mantissa in full, and the sign of a positive exponent only
/// with "E+". Rounds half away from zero on the shortest decimal text of `value`; what rounds to
/// zero prints "." without a sign. A value that is not finite prints as `GeneralText` does.
std::string FormatNumber(double value, std::string_view pattern);

/// The same on the shortest decimal text of a single (0.285F counts as .285 exactly).
std::string FormatNumber(float value, std::string_view pattern);

/// As other programs and people read numbers today: a zero before the point, "0.05". `PlainText`
/// has up to 7 significant digits ("1.5e-05"), `FixedText` always the given decimals ("0.050").
/// Never a negative zero; empty for a value that is not finite.
std::string PlainText(double value);
std::string FixedText(double value, int decimals);

/// The longest leading decimal number of `text`, blanks before it skipped, exponent allowed.
/// 0 when there is none or when it is out of a double's range.
double ReadNumber(std::string_view text);

/// All of `text` as one decimal number; nothing when any character is left over, when there is
/// none, or when it is out of a double's range.
std::optional<double> ParseNumber(std::string_view text);

/// Rounded to the nearest integer, halves to even, and clamped to 16 bits. Not a number gives 0.
std::int16_t ToInt16(double value);

/// The double that has the same shortest decimal text as `value`: 998.2F gives 998.2.
double DecimalDouble(float value);

/// `value` as a single: what exceeds its range becomes the largest single of that sign, what is
/// not a number becomes 0. So a typed number can never put an infinity into a record.
float ToSingle(double value);

/// `value` times `factor`, in another unit: the number of up to six digits that is stored as this
/// value, so that what was typed as 81.6 mm or 67 kg/h and is kept as .0816 m or .01861111 kg/s is
/// shown as it was typed; without such a number, the product with its shortest decimal text.
float ScaledSingle(float value, double factor);

}  // namespace idrova
