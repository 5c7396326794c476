// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>

#include "support/asked_locale.h"
#include "ui/frm_start.h"

/// The windows run without a display, on a screen of a usual size.
int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" IDROVA_TEST_SCREEN);
    }
    QStandardPaths::setTestModeEnabled(true);
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    if (!idrova::LocaleIsAsAsked()) return EXIT_FAILURE;
    QApplication::setQuitOnLastWindowClosed(false);
    idrova::SetDecimalPoint();
    return RUN_ALL_TESTS();
}
