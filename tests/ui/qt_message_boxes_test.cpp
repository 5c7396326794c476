// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt_message_boxes.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

namespace idrova {
namespace {

/// Shows the box for real and presses `key` in it; `look` sees the window before.
template <typename Look>
Answer Press(const idrova::MessageBox& box, Qt::Key key, const Look& look) {
    QTimer::singleShot(0, [&] {
        auto* window = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(window, nullptr);
        look(*window);
        QTest::keyClick(window, key);
        if (window->isVisible()) {
            ADD_FAILURE() << "the key did not close the box";
            window->reject();
        }
    });
    return QtMessageBoxes().Show(box);
}

TEST(QtMessageBoxes, ReturnAndEscapeAnswerAsTheButtonsSay) {
    struct Case {
        BoxButtons buttons;
        Qt::Key key;
        Answer answer;
    };
    for (const Case& expected : {Case{BoxButtons::Ok, Qt::Key_Return, Answer::Ok},
                                 Case{BoxButtons::Ok, Qt::Key_Escape, Answer::Ok},
                                 Case{BoxButtons::OkCancel, Qt::Key_Return, Answer::Ok},
                                 Case{BoxButtons::OkCancel, Qt::Key_Escape, Answer::Cancel},
                                 Case{BoxButtons::YesNo, Qt::Key_Return, Answer::Yes},
                                 Case{BoxButtons::YesNo, Qt::Key_Escape, Answer::No}}) {
        EXPECT_EQ(Press({"text", "title", BoxIcon::Question, expected.buttons}, expected.key,
                        [](const QMessageBox& /*box*/) {}),
                  expected.answer);
    }
}

TEST(QtMessageBoxes, ShowsTitleIconAndTheTextAsItIs) {
    const idrova::MessageBox box("a <b>bold</b> name\nsecond line", "Check", BoxIcon::Exclamation);
    Press(box, Qt::Key_Return, [](const QMessageBox& window) {
        EXPECT_EQ(window.windowTitle(), "Check");
        EXPECT_EQ(window.text(), "a <b>bold</b> name\nsecond line");
        EXPECT_EQ(window.textFormat(), Qt::PlainText);
        EXPECT_EQ(window.icon(), QMessageBox::Warning);
        EXPECT_EQ(window.standardButtons(), QMessageBox::Ok);
    });
}

}  // namespace
}  // namespace idrova
