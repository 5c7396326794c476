// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frm_start.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QTest>

#include "support/scripted_boxes.h"

namespace idrova {
namespace {

constexpr int kNever = 600000;

class Splash : public testing::Test {
  protected:
    void Start(int milliseconds) {
        FrmStart(
            boxes, [this] { ++opened; }, milliseconds);
        splash = nullptr;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == "FrmWarn" && widget->isVisible()) splash = widget;
        }
        ASSERT_NE(splash, nullptr);
    }

    ScriptedBoxes boxes;  ///< the test screen is wide enough: no message is expected
    QWidget* splash = nullptr;
    int opened = 0;
};

TEST_F(Splash, EndsByItselfAndOpensTheMainWindowOnce) {
    Start(20);
    EXPECT_EQ(opened, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return opened == 1; }));
    QTest::qWait(60);
    EXPECT_EQ(opened, 1);
}

TEST_F(Splash, ClickAndKeyEndIt) {
    Start(kNever);
    QTest::mouseClick(splash, Qt::LeftButton);
    EXPECT_EQ(opened, 1);
    Start(kNever);
    QTest::keyClick(splash, Qt::Key_Space);
    EXPECT_EQ(opened, 2);
    EXPECT_FALSE(splash->isVisible());
}

TEST_F(Splash, ShowsTheVersion) {
    Start(kNever);
    QStringList texts;
    for (const QLabel* label : splash->findChildren<QLabel*>()) texts.append(label->text());
    EXPECT_TRUE(texts.contains("ver. 2.6.3"));
    QTest::mouseClick(splash, Qt::LeftButton);
}

}  // namespace
}  // namespace idrova
