// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>

#include "editor/drawing_surface.h"

namespace idrova {

inline QColor ToQt(Rgb colour) {
    return {colour.red, colour.green, colour.blue};
}

/// Sizes are screen units, 15 to a pixel at scale 1.
namespace drawing_style {
constexpr QColor kGridLine(0x9A, 0x9A, 0x9A);
constexpr QColor kCursor(0xC0, 0x40, 0x00);
constexpr QColor kLeader(0x00, 0x86, 0x8F);  ///< seen on the cells and beside them in any theme
constexpr QColor kLabelFrame(0x40, 0x40, 0x40);
constexpr double kCursorWidth = 30;
constexpr double kPipeWidth = 45;
constexpr double kArrowWidth = 30;
constexpr double kMarker = 120;  ///< diameter
constexpr int kHeaderHeight = 150;
constexpr int kLabelHeight = 160;

inline QFont Font(int height) {
    QFont font("sans-serif");
    font.setPixelSize(height);
    return font;
}
}  // namespace drawing_style

}  // namespace idrova
