// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt_message_boxes.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

namespace idrova {
namespace {

TEST(QtMessageBoxes, ShowTheTextAsItIsAndAnswerAsTheButtonsSay) {
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
        QTimer::singleShot(0, [&expected] {
            auto* window = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(window, nullptr);
            EXPECT_EQ(window->windowTitle(), "Check");
            EXPECT_EQ(window->text(), "a <b>bold</b> name\nsecond line");
            EXPECT_EQ(window->textFormat(), Qt::PlainText);
            EXPECT_EQ(window->icon(), QMessageBox::Warning);
            QTest::keyClick(window, expected.key);
            if (!window->isVisible()) return;
            ADD_FAILURE() << "the key did not close the box";
            window->reject();
        });
        EXPECT_EQ(QtMessageBoxes().Show({"a <b>bold</b> name\nsecond line", "Check",
                                         BoxIcon::Exclamation, expected.buttons}),
                  expected.answer);
    }
}

}  // namespace
}  // namespace idrova
