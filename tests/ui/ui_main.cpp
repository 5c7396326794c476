// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "support/asked_locale.h"
#include "ui/windows/frm_start.h"

#ifdef __SANITIZE_ADDRESS__
/// On a display, Qt asks the message bus, whose library keeps what it allocated.
extern "C" const char* __lsan_default_suppressions() {
    return "leak:libdbus-1";
}
#endif

/// The windows run without a display, on a screen of a usual size.
int main(int argc, char* argv[]) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" IDROVA_TEST_SCREEN);
    }
    QStandardPaths::setTestModeEnabled(true);
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    if (!idrova::LocaleIsAsAsked()) return EXIT_FAILURE;
    QApplication::setQuitOnLastWindowClosed(false);
    idrova::PrepareInput();
    return RUN_ALL_TESTS();
}
