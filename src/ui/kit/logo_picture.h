// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QIcon;
class QLabel;

namespace idrova {

/// Under this name desktops and the program itself find the program's picture.
inline const QString kApplicationId = QStringLiteral("io.github.idrova.Idrova");

/// The program's picture in all its sizes.
QIcon LogoIcon();

/// The same as a label of `side` pixels.
QLabel* LogoLabel(int side);

}  // namespace idrova
