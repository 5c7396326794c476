// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/mdi.h"

#include <QDockWidget>
#include <QDropEvent>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QUrl>

#include "hydraulics/messages.h"
#include "main_window.h"
#include "model/messages.h"
#include "shell/messages.h"
#include "ui/frm_com.h"
#include "ui/frm_help.h"

namespace idrova {
namespace {

TEST_F(MainWindow, StartsWithAnEmptyProjectAndEndsAsAsked) {
    EXPECT_EQ(mdi->objectName(), "MDI");
    ASSERT_NE(Window("FrmCel"), nullptr);
    EXPECT_EQ(Window("FrmCel")->windowTitle(), "Idrova - plant drawing");
    EXPECT_EQ(mdi->Panel().windowTitle(), "Idrova - Commands");
    EXPECT_EQ(mdi->Hints().windowTitle(), "Idrova - Help");
    EXPECT_TRUE(mdi->Hints().isVisible());
    EXPECT_EQ(Shown("Label2 RoughnessLabel StatusMode StatusFluid"),
              "first point of a pipe|zincate steel\t  1.00E-4|Mode: Graphic|No fluid");
    EXPECT_FALSE(mdi->Panel().close());
    EXPECT_TRUE(mdi->Panel().isVisible());

    QWidget* drawing = Window("FrmCel")->parentWidget();
    drawing->showMaximized();
    QApplication::processEvents();
    ASSERT_TRUE(drawing->isMaximized());
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [New project]");
    Choose("Logo");
    EXPECT_FALSE(Window("FrmLogo")->parentWidget()->isMaximized());

    boxes.Expect(kManualNotice)
        .Expect(kExitQuestion, Answer::Cancel)
        .Expect(kExitQuestion, Answer::Ok);
    Choose("Help");
    Choose("Esci");
    EXPECT_TRUE(mdi->isVisible());
    Choose("Esci");
    EXPECT_FALSE(mdi->isVisible());
    mdi->show();
    EXPECT_TRUE(mdi->close()) << "by its frame, without a question";
}

TEST_F(MainWindow, HintsAreToggledByTheMenuAndTheFrame) {
    Choose("Helpslinea");
    EXPECT_FALSE(mdi->Hints().isVisible() || Item("Helpslinea").isChecked());
    Choose("Helpslinea");
    EXPECT_TRUE(mdi->Hints().isVisible() && Item("Helpslinea").isChecked());
    mdi->showMinimized();
    QApplication::processEvents();
    EXPECT_TRUE(program->shell.HintsShown) << "minimising does not close them";
    mdi->showNormal();
    mdi->Hints().close();
    EXPECT_FALSE(program->shell.HintsShown || Item("Helpslinea").isChecked());
}

TEST_F(MainWindow, AboutWindowOpensProgressivelyAndStaysInReach) {
    Open("Logo", "FrmLogo");
    const QSize early = window->size();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->size() == QSize(400, 300); }));
    EXPECT_LT(early.height(), 100);
    EXPECT_EQ(Shown("Label1"), "ver. 2.6.3");

    QWidget* frame = window->parentWidget();
    frame->move(900, 600);
    mdi->resize(700, 500);
    QApplication::processEvents();
    const QRect area = mdi->Windows().viewport()->rect();
    EXPECT_TRUE(area.contains(frame->pos()));
    EXPECT_EQ(Window("FrmCel")->parentWidget()->geometry(), area);
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_EQ(Window("FrmLogo"), nullptr);
}

TEST_F(MainWindow, PanelAndChecksFollowTheSettings) {
    Choose("t4");
    EXPECT_EQ(Shown("RoughnessLabel"), "partially rusty...  2.00E-3");
    Choose("p_mbar");
    EXPECT_EQ(Shown("LabelUnit_0 LabelUnit_1 LabelUnit_2 LabelUnit_3"),
              "[mbar]|[mbar]|[mbar]|[mbar]");
    boxes.Expect(kNotCompressible);
    Choose("Cor2");
    EXPECT_TRUE(Item("Cor1").isChecked());
    project.FluidCompressibility = 1;
    Choose("Cor2");
    EXPECT_TRUE(Item("Cor2").isChecked());
}

TEST_F(MainWindow, DroppedProjectIsOpenedAndOtherFilesAreNot) {
    const auto send = [&](const std::string& name) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(QString::fromStdString((folder / name).string()))});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(mdi.get(), &enter);
        if (!enter.isAccepted()) return false;
        QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(mdi.get(), &drop);
        return true;
    };
    EXPECT_FALSE(send("picture.png"));
    boxes.Expect(kFileMissing);
    EXPECT_TRUE(send("absent.iv"));
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [absent.iv]");
}

}  // namespace
}  // namespace idrova
