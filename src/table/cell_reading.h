// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace idrova {

/// What becomes of a text that is put into a cell of a column: a comma that is its only separator
/// stands for the decimal point, a height is a whole number of metres, a sum of loss coefficients
/// is not negative.
std::string CellText(int column, std::string_view typed);

/// Whether a text is, as a whole, what the column holds: one number, or a nominal size. An empty
/// one is. Of any other text only the leading number counts.
bool IsWholeCell(int column, std::string_view text);

/// Position of the nominal size that the text names, with or without the inch mark; 0 when none.
int NominalSizeNamed(std::string_view text);

}  // namespace idrova
