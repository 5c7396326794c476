// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frm_start.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>

#include "support/scripted_boxes.h"

namespace idrova {
namespace {

TEST(Splash, ShowsTheVersionAndOpensTheMainWindowOnce) {
    ScriptedBoxes boxes;  // the test screen is wide enough: no message is expected
    for (const int milliseconds : {20, 600000, 600001}) {
        int opened = 0;
        FrmStart(
            boxes, [&opened] { ++opened; }, milliseconds);
        QWidget* splash = nullptr;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == "FrmWarn" && widget->isVisible()) splash = widget;
        }
        ASSERT_NE(splash, nullptr);
        QStringList texts;
        for (const QLabel* label : splash->findChildren<QLabel*>()) texts.append(label->text());
        EXPECT_TRUE(texts.contains("ver. 2.6.3"));
        EXPECT_EQ(opened, 0);
        if (milliseconds == 600000) QTest::mouseClick(splash, Qt::LeftButton);
        if (milliseconds == 600001) QTest::keyClick(splash, Qt::Key_Space);
        EXPECT_TRUE(QTest::qWaitFor([&] { return opened == 1; }));
        QTest::qWait(60);
        EXPECT_EQ(opened, 1);
    }
}

}  // namespace
}  // namespace idrova
