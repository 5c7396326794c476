// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>

#include "base/result.h"

namespace idrova {

/// A page of HTML on sheets of A4, after them the drawing, an SVG picture, on a sheet of its own;
/// no such sheet for an empty drawing. A failure leaves an old file as it was; so below.
Status WritePdfReport(const std::string& html, const std::string& drawing,
                      const std::filesystem::path& file);

/// The drawing on white, two pixels for each of the screen's.
Status WritePng(const std::string& drawing, const std::filesystem::path& file);

}  // namespace idrova
