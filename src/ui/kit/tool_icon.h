// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QString>

namespace idrova {

/// The icon of this name in the desktop's theme; without one, `strokes` drawn in the colour of the
/// texts: lines over a field of 24 by 24, "4,4 20,4;4,9 20,9".
QIcon ToolIcon(const char* themeName, const QString& strokes);

}  // namespace idrova
