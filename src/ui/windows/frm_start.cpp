// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_start.h"

#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <clocale>
#include <utility>

#include "ui/kit/keypad_point.h"
#include "ui/kit/wheel_guard.h"
#include "ui/windows/frm_warn.h"

namespace idrova {

void PrepareInput() {
    QLocale::setDefault(QLocale::c());
    std::setlocale(LC_NUMERIC, "C");
    std::setlocale(LC_MESSAGES, "C");  // the reasons that the system gives, as all other messages
    qApp->installEventFilter(new KeypadPoint(qApp));
    qApp->installEventFilter(new WheelGuard(qApp));
}

void FrmStart(MessageBoxes& boxes, std::function<void()> openMainWindow, int splashMilliseconds) {
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        CheckScreen(screen->size().width(), boxes);
    }
    // It deletes itself at its end.
    new FrmWarn(splashMilliseconds, std::move(openMainWindow));
}  // NOLINT(clang-analyzer-cplusplus.NewDeleteLeaks)

}  // namespace idrova
