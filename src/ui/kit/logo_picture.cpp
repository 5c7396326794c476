// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/logo_picture.h"

#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QPixmap>

namespace idrova {

QIcon LogoIcon() {
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        icon.addFile(QString(":/hicolor/%1x%1/apps/%2.png").arg(side).arg(kApplicationId));
    }
    return icon;
}

QLabel* LogoLabel(int side) {
    auto* label = new QLabel;
    label->setPixmap(LogoIcon().pixmap(QSize(side, side), qGuiApp->devicePixelRatio()));
    label->setAlignment(Qt::AlignCenter);
    return label;
}

}  // namespace idrova
