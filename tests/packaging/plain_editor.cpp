// SPDX-License-Identifier: GPL-3.0-or-later
// plain_editor FILE: stands for a text editor. Once its window fills the screen and has the focus
// it leaves FILE.in-front behind and ends.
#include <QApplication>
#include <QFile>
#include <QPlainTextEdit>
#include <QTimer>

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    const QString name = QApplication::arguments().value(1);
    QPlainTextEdit window;
    window.setWindowTitle(name);
    window.show();
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &window, [&] {
        if (!window.isMaximized() || !window.isActiveWindow()) return;
        QFile seen(name + ".in-front");
        if (seen.open(QIODevice::WriteOnly) && seen.write("seen") > 0) QApplication::quit();
    });
    look.start(20);
    return QApplication::exec();
}
