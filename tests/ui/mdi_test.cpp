// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/mdi.h"

#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMimeData>
#include <QPushButton>
#include <QUrl>

#include "hydraulics/messages.h"
#include "main_window.h"
#include "model/messages.h"
#include "shell/messages.h"
#include "ui/frm_com.h"
#include "ui/frm_help.h"

namespace idrova {
namespace {

TEST_F(MainWindow, StartsWithAnEmptyProjectInGraphicMode) {
    EXPECT_EQ(mdi->objectName(), "MDI");
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [New project]");
    ASSERT_NE(Window("FrmCel"), nullptr);
    EXPECT_EQ(Window("FrmCel")->windowTitle(), "Idrova - plant drawing");
    EXPECT_EQ(Child<QDockWidget>("FrmCom").windowTitle(), "Idrova - Commands");
    EXPECT_EQ(Child<QDockWidget>("FrmHelp").windowTitle(), "Idrova - Help");
    EXPECT_TRUE(Child<QDockWidget>("FrmHelp").isVisible());
    EXPECT_EQ(Child<QLabel>("Label2").text(), "first point of a pipe");
    EXPECT_EQ(Child<QLabel>("RoughnessLabel").text(), "zincate steel\t  1.00E-4");
    EXPECT_EQ(Child<QLabel>("StatusMode").text(), "Mode: Graphic");
    EXPECT_EQ(Child<QLabel>("StatusFluid").text(), "No fluid");
}

TEST_F(MainWindow, KeepsItsTitleWhenAChildIsMaximised) {
    QWidget* drawing = Window("FrmCel")->parentWidget();
    drawing->showMaximized();
    QApplication::processEvents();
    ASSERT_TRUE(drawing->isMaximized());
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [New project]");
    Choose("Logo");
    EXPECT_FALSE(Window("FrmLogo")->parentWidget()->isMaximized());
}

TEST_F(MainWindow, ExitAsksAndLeavesOnlyOnOk) {
    boxes.Expect(kExitQuestion, Answer::Cancel).Expect(kExitQuestion, Answer::Ok);
    Choose("Esci");
    EXPECT_TRUE(mdi->isVisible());
    Choose("Esci");
    EXPECT_FALSE(mdi->isVisible());
}

TEST_F(MainWindow, ClosesByItsFrameWithoutAQuestion) {
    EXPECT_TRUE(mdi->close());
}

TEST_F(MainWindow, HintsAreToggledByTheMenuTheFrameAndTheMode) {
    QDockWidget& hints = mdi->Hints();
    Choose("Helpslinea");
    EXPECT_FALSE(hints.isVisible());
    EXPECT_FALSE(Item("Helpslinea").isChecked());
    Choose("Helpslinea");
    EXPECT_TRUE(hints.isVisible());
    hints.close();
    EXPECT_FALSE(program->shell.HintsShown);
    EXPECT_FALSE(Item("Helpslinea").isChecked());
    Choose("Grafico");
    EXPECT_TRUE(hints.isVisible());
    EXPECT_TRUE(Item("Helpslinea").isChecked());
    Choose("sintub");
    EXPECT_FALSE(hints.isVisible());
    EXPECT_FALSE(Item("Helpslinea").isChecked());
}

TEST_F(MainWindow, MinimisingDoesNotCountAsClosingTheHints) {
    mdi->showMinimized();
    QApplication::processEvents();
    EXPECT_TRUE(program->shell.HintsShown);
}

TEST_F(MainWindow, SinglePipeModeClosesTheDrawingAndLocksTheCalculateButton) {
    program->project.numtubo = 3;
    Choose("sintub");
    EXPECT_EQ(Window("FrmCel"), nullptr);
    EXPECT_FALSE(Child<QPushButton>("Command1", &mdi->Panel()).isEnabled());
    EXPECT_EQ(program->project.Mode, WorkMode::SinglePipe);
    EXPECT_EQ(program->project.numtubo, 3);
    Choose("Grafico");
    EXPECT_NE(Window("FrmCel"), nullptr);
    EXPECT_TRUE(Child<QPushButton>("Command1", &mdi->Panel()).isEnabled());
}

TEST_F(MainWindow, ManualNotice) {
    boxes.Expect(kManualNotice);
    Choose("Help");
}

TEST_F(MainWindow, AboutWindowOpensProgressivelyAndClosesOnEscape) {
    Choose("Logo");
    ChildWindow* about = Window("FrmLogo");
    ASSERT_NE(about, nullptr);
    const QSize early = about->size();
    EXPECT_TRUE(QTest::qWaitFor([&] { return about->size() == QSize(400, 300); }));
    EXPECT_LT(early.height(), 100);
    EXPECT_EQ(Child<QLabel>("Label1", about).text(), "ver. 2.6.3");
    QTest::keyClick(about, Qt::Key_Escape);
    EXPECT_EQ(Window("FrmLogo"), nullptr);
}

TEST_F(MainWindow, PanelFollowsTheSettings) {
    Choose("t4");
    EXPECT_EQ(Child<QLabel>("RoughnessLabel").text(), "partially rusty...  2.00E-3");
    QWidget& panel = mdi->Panel();
    Choose("Rettangolare");
    EXPECT_EQ(Child<QLabel>("LabelSideA").text(), "a [mm]");
    EXPECT_TRUE(Child<QLabel>("LabelSideB").isVisible());
    EXPECT_FALSE(Child<QComboBox>("Combo2", &panel).isVisible());
    Choose("Circolare");
    EXPECT_EQ(Child<QLabel>("LabelSideA").text(), "Diameter [mm]");
    EXPECT_FALSE(Child<QLabel>("LabelSideB").isVisible());
    Choose("p_mbar");
    for (const char* unit : {"LabelUnit_0", "LabelUnit_1", "LabelUnit_2", "LabelUnit_3"}) {
        EXPECT_EQ(Child<QLabel>(unit).text(), "[mbar]");
    }
}

TEST_F(MainWindow, CompressibleEquationIsRefusedForALiquid) {
    boxes.Expect(kNotCompressible);
    Choose("Cor2");
    EXPECT_TRUE(Item("Cor1").isChecked());
    program->project.FluidCompressibility = 1;
    Choose("Cor2");
    EXPECT_TRUE(Item("Cor2").isChecked());
}

TEST_F(MainWindow, CommandPanelCanNotBeClosed) {
    EXPECT_FALSE(mdi->Panel().close());
    EXPECT_TRUE(mdi->Panel().isVisible());
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

TEST_F(MainWindow, ChildWindowsStayInReachWhenTheMainWindowShrinks) {
    Choose("Logo");
    QWidget* frame = Window("FrmLogo")->parentWidget();
    frame->move(900, 600);
    mdi->resize(700, 500);
    QApplication::processEvents();
    EXPECT_TRUE(mdi->Windows().viewport()->rect().contains(frame->pos()));
    const QWidget* drawing = Window("FrmCel")->parentWidget();
    EXPECT_EQ(drawing->geometry(), mdi->Windows().viewport()->rect());
}

}  // namespace
}  // namespace idrova
