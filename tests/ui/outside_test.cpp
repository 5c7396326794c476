// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "support/scripted_boxes.h"
#include "support/temp_folder.h"
#include "ui/kit/messages.h"
#include "ui/kit/print_text.h"
#include "ui/kit/qt_message_boxes.h"
#include "ui/kit/qt_text.h"
#include "ui/kit/start_program.h"
#include "ui/windows/frm_start.h"

namespace idrova {
namespace {

TEST(PrintText, PdfIsOfferedInPlaceOfAPrinter) {
    const TempFolder folder;
    ScriptedBoxes boxes;
    boxes.Expect(kNoPrinter, Answer::No).Expect(kNoPrinter, Answer::Yes);
    OfferPdf("report", folder.Path(), nullptr, boxes);
    QTimer::singleShot(0, [&] {
        auto* name = QApplication::activeModalWidget()->findChild<QLineEdit*>("fileNameEdit");
        name->setText(PathToQt(folder / "report.pdf"));
        QTest::keyClick(name, Qt::Key_Return);
    });
    OfferPdf(std::string(120, 'x') + "\r\nsecond line\r\n", folder.Path(), nullptr, boxes);
    EXPECT_TRUE(FileBytes(folder / "report.pdf").starts_with("%PDF-"));
    EXPECT_FALSE(WritePdf("text", folder / "absent" / "report.pdf"));
}

TEST(StartWithFile, PathsWithBlanksReachTheProgramWhole) {
    const TempFolder folder;
    const auto program = folder / "my editor";
    PutFile(program,
            "#!/bin/sh\n[ -t 0 ] || [ -t 1 ] || echo \"$#:$1:$PWD\" > \"$1.seen\"\nexit 3\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    const auto file = folder / "the results.dat";
    std::string told;
    const auto gaveUp = [&told](const std::string& words) { told = words; };
    ASSERT_TRUE(StartWithFile(program, file, *qApp, gaveUp));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !told.empty(); })) << "it ended with an error";
    EXPECT_EQ(FileBytes(folder / "the results.dat.seen"),
              "1:" + file.string() + ":" + folder.Path().string() + "\n");
    const Status absent = StartWithFile(folder / "vanished", file, *qApp, gaveUp);
    EXPECT_NE(absent.Error().find("vanished"), std::string::npos);
}

TEST(KeypadPoint, TheDecimalKeyOfTheKeypadWritesAPeriod) {
    QLineEdit field;
    QTest::keyClick(&field, Qt::Key_1, Qt::KeypadModifier);
    QTest::keyClick(&field, Qt::Key_Comma, Qt::KeypadModifier);
    QTest::keyClick(&field, Qt::Key_Comma);
    EXPECT_EQ(field.text(), "1.,");
}

TEST(QtMessageBoxes, ShowTheTextAsItIsAndAnswerAsTheButtonsSay) {
    const std::tuple<BoxButtons, Qt::Key, Answer> cases[] = {
        {BoxButtons::Ok, Qt::Key_Return, Answer::Ok},
        {BoxButtons::Ok, Qt::Key_Escape, Answer::Ok},
        {BoxButtons::OkCancel, Qt::Key_Return, Answer::Ok},
        {BoxButtons::OkCancel, Qt::Key_Escape, Answer::Cancel},
        {BoxButtons::YesNo, Qt::Key_Return, Answer::Yes},
        {BoxButtons::YesNo, Qt::Key_Escape, Answer::No}};
    for (const auto& [buttons, key, answer] : cases) {
        QTimer::singleShot(0, [pressed = key] {
            auto& window = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
            EXPECT_EQ(window.windowTitle() + window.text(), "Checka <b>bold</b> name\nsecond");
            EXPECT_EQ(window.textFormat(), Qt::PlainText);
            EXPECT_EQ(window.icon(), QMessageBox::Warning);
            QTest::keyClick(&window, pressed);
            EXPECT_FALSE(window.isVisible()) << "the key did not close the box";
            if (window.isVisible()) window.reject();
        });
        EXPECT_EQ(QtMessageBoxes().Show(
                      {"a <b>bold</b> name\nsecond", "Check", BoxIcon::Exclamation, buttons}),
                  answer);
    }
}

TEST(Splash, ShowsTheVersionAndOpensTheMainWindowOnce) {
    ScriptedBoxes boxes;  // the test screen is wide enough: no message is expected
    for (const int milliseconds : {20, 600000, 600001}) {
        int opened = 0;
        FrmStart(
            boxes, [&opened] { ++opened; }, milliseconds);
        const auto windows = QApplication::topLevelWidgets();
        const auto found = std::ranges::find_if(windows, [](const QWidget* window) {
            return window->objectName() == "FrmWarn" && window->isVisible();
        });
        ASSERT_NE(found, windows.end());
        QWidget* splash = *found;
        EXPECT_EQ(splash->findChild<QLabel*>("Label2")->text(), "ver. 2.6.3");
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
