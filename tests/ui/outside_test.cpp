// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "support/scripted_boxes.h"
#include "support/temp_folder.h"
#include "ui/messages.h"
#include "ui/print_text.h"
#include "ui/qt_text.h"
#include "ui/start_program.h"

namespace idrova {
namespace {

TEST(PrintText, PdfHasThePagesAndReplacesNothingOnFailure) {
    const TempFolder folder;
    const std::string line(120, 'x');
    ASSERT_TRUE(WritePdf(line + "\r\nsecond line\r\n", folder / "report.pdf"));
    EXPECT_TRUE(FileBytes(folder / "report.pdf").starts_with("%PDF-"));
    EXPECT_FALSE(WritePdf("text", folder / "absent" / "report.pdf"));
    EXPECT_FALSE(std::filesystem::exists(folder / "absent"));
}

TEST(PrintText, PdfIsOfferedInPlaceOfAPrinter) {
    const TempFolder folder;
    ScriptedBoxes boxes;
    boxes.Expect(kNoPrinter, Answer::No).Expect(kNoPrinter, Answer::Yes);
    OfferPdf("report", nullptr, boxes);
    QTimer::singleShot(0, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
        ASSERT_NE(name, nullptr);
        name->setText(PathToQt(folder / "report.pdf"));
        QTest::keyClick(name, Qt::Key_Return);
    });
    OfferPdf("report", nullptr, boxes);
    EXPECT_TRUE(std::filesystem::exists(folder / "report.pdf"));
}

TEST(StartWithFile, PathsWithBlanksReachTheProgramWhole) {
    const TempFolder folder;
    const auto program = folder / "my editor";
    PutFile(program,
            "#!/bin/sh\necho \"$#:$1:$PWD\" > \"$1.seen.tmp\"\nmv \"$1.seen.tmp\" \"$1.seen\"\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    const auto file = folder / "the results.dat";
    ASSERT_TRUE(StartWithFile(program, file));
    const auto seen = folder / "the results.dat.seen";
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(seen); }));
    EXPECT_EQ(FileBytes(seen), "1:" + file.string() + ":" + folder.Path().string() + "\n");
    const Status status = StartWithFile(folder / "vanished", file);
    ASSERT_FALSE(status);
    EXPECT_NE(status.Error().find("vanished"), std::string::npos);
}

}  // namespace
}  // namespace idrova
