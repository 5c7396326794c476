// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/frame/mdi.h"

#include <QDesktopServices>
#include <QDockWidget>
#include <QDropEvent>
#include <QGraphicsView>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>
#include <map>
#include <set>

#include "hydraulics/messages.h"
#include "main_window.h"
#include "projectfile/messages.h"
#include "projectfile/project_file.h"
#include "projectfile/unsaved_copy.h"
#include "shell/menu_table.h"
#include "shell/messages.h"
#include "ui/kit/qt_text.h"
#include "ui/panel/frm_com.h"
#include "ui/windows/frm_help.h"

namespace idrova {
namespace {

TEST_F(MainWindow, StartsWithAnEmptyProject) {
    EXPECT_EQ(mdi->objectName(), "MDI");
    EXPECT_EQ(mdi->Panel().windowTitle(), "Idrova - Commands");
    EXPECT_EQ(mdi->Hints().windowTitle(), "Idrova - Help");
    EXPECT_FALSE(mdi->Panel().close());
    EXPECT_TRUE(mdi->Panel().isVisible());
    EXPECT_LT(mdi->height(), mdi->screen()->availableGeometry().height());
    Walk(R"(
        # MDI FrmCel # Idrova 2.6.3 - [New project]|Idrova - plant drawing
        # Label2 StatusMode StatusFluid # first point of a pipe|Mode: Graphic|No fluid)");
    program->titleName = "a[*]b";
    program->changed();
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [a[*][*]b]") << "shown with one star";
    Window("FrmCel")->CloseWindow();
    boxes.Expect(kLeaveProject, Answer::Ok);
    Walk(R"(p_mbar # FrmCel # # only a new network brings it back
            Nuovo # FrmCel # Idrova - plant drawing)");

    const auto hintsAreShown = [this] {
        EXPECT_EQ(mdi->Hints().isVisible(), Item("Helpslinea").isChecked());
        return program->shell.HintsShown;
    };
    Do("Helpslinea");
    EXPECT_FALSE(hintsAreShown());
    Do("Helpslinea");
    mdi->showMinimized();
    QApplication::processEvents();
    mdi->showNormal();
    EXPECT_TRUE(hintsAreShown()) << "minimising does not close them";
    mdi->Hints().close();
    EXPECT_FALSE(hintsAreShown());
}

TEST_F(MainWindow, EndsAsAskedAndKeepsWhatIsUnsaved) {
    const auto copy = folder / kUnsavedFile;
    project.TableRows[2].StartPoint = 1;
    boxes.Expect(kExitQuestion, Answer::Cancel).Expect(kExitQuestion, Answer::Ok);
    for (const bool ended : {false, true}) {
        Do("Esci");
        EXPECT_NE(mdi->isVisible(), ended);
        EXPECT_EQ(std::filesystem::exists(copy), ended);
    }
    std::filesystem::remove(copy);
    mdi->show();
    EXPECT_TRUE(mdi->close()) << "by its frame, without a question";
    EXPECT_TRUE(std::filesystem::exists(copy));
    std::filesystem::remove_all(folder.Path());
    boxes.Expect({UnsavedLost("Cannot write " + copy.string() + ": No such file or directory"),
                  kExitQuestion.title});
    mdi->show();
    EXPECT_TRUE(mdi->close());
}

TEST_F(MainWindow, HelpShowsTheManualAndHintsFitTheMode) {
    QTextBrowser viewer;
    QDesktopServices::setUrlHandler("file", &viewer, "setSource");
    PutFile(folder / "manual.pdf", "manual");
    boxes.Expect(kManualNotice).Expect(kManualNotice);
    Walk("Help # message # The user manual was not found");
    program->shipped.manual = folder / "manual.pdf";
    Walk("Help # message # # the words of the command before are gone");
    EXPECT_EQ(viewer.source().toLocalFile(), PathToQt(folder / "manual.pdf"));
    QDesktopServices::unsetUrlHandler("file");
    mdi->Say("kept");
    mdi->statusBar()->showMessage("a tip");
    mdi->statusBar()->clearMessage();
    Walk(R"(# message # kept # a tip only comes over it
            Tabella;Helpslinea # Label4 # compute the table
            sintub;Helpslinea # Label4 # the unknown one is computed at once)");
}

TEST_F(MainWindow, DataWindowsStayAboveTheWindowOfTheMode) {
    Open("Veloce", "FrmVel");
    const auto isAbove = [this] {
        const auto order = mdi->Windows().subWindowList(QMdiArea::StackingOrder);
        return order.back()->widget() == window;
    };
    EXPECT_TRUE(isAbove());
    QTest::mouseClick(Child<QGraphicsView>("Drawing").viewport(), Qt::RightButton);
    EXPECT_TRUE(isAbove());
    Walk(R"(Tabella # FrmVel # # it acts on the drawing
            # enabled Veloce #)");
}

TEST_F(MainWindow, AboutWindowOpensProgressivelyAndStaysInReach) {
    QWidget* drawing = Window("FrmCel")->parentWidget();
    drawing->showMaximized();
    Walk("Logo>FrmLogo # MDI Label1 # Idrova 2.6.3 - [New project]|ver. 2.6.3");
    EXPECT_LT(window->height(), 100);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->size() == QSize(400, 300); }));
    window->parentWidget()->move(900, 600);
    mdi->resize(700, 500);
    QApplication::processEvents();
    const QRect area = mdi->Windows().viewport()->rect();
    EXPECT_TRUE(area.contains(window->parentWidget()->pos()));
    EXPECT_EQ(drawing->geometry(), area);
}

/// The entries of a menu as a user finds them.
QList<QAction*> WithoutSeparators(QList<QAction*> actions) {
    actions.removeIf([](const QAction* action) { return action->isSeparator(); });
    return actions;
}

TEST_F(MainWindow, MenuBarShowsTheTable) {
    std::map<QString, QList<QAction*>> menus{{"", WithoutSeparators(mdi->menuBar()->actions())}};
    std::set<QString> keys{"F2"};  // edits a cell of the table
    for (const MenuEntry& entry : MenuTable()) {
        SCOPED_TRACE(std::string(entry.name));
        ASSERT_FALSE(menus[ToQt(entry.parent)].isEmpty());
        QAction& action = *menus[ToQt(entry.parent)].takeFirst();
        QMenu* menu = action.menu();
        EXPECT_EQ(menu != nullptr ? menu->objectName() : action.objectName(), ToQt(entry.name));
        if (menu != nullptr) menus[menu->objectName()] = WithoutSeparators(menu->actions());
        EXPECT_EQ(menu != nullptr, entry.kind == MenuKind::Menu && action.statusTip().isEmpty());
        EXPECT_EQ(action.text().remove('&'), ToQt(entry.caption));
        EXPECT_EQ(action.isChecked(), IsChecked(entry, project.settings, program->shell));
        const QString shortcut =
            QKeySequence::listToString(action.shortcuts(), QKeySequence::PortableText);
        EXPECT_EQ(shortcut, ToQt(entry.shortcut));
        EXPECT_TRUE(shortcut.isEmpty() || keys.insert(shortcut).second);
        const QString mnemonic = QKeySequence::mnemonic(action.text()).toString();
        EXPECT_TRUE(!mnemonic.isEmpty() && keys.insert(ToQt(entry.parent) + mnemonic).second);
    }
    for (const auto& [menu, left] : menus) EXPECT_TRUE(left.isEmpty()) << menu.toStdString();
}

TEST_F(MainWindow, OneOfEachGroupIsChecked) {
    boxes.Expect(kNotCompressible);
    Walk(R"(
        t5;t5 # t1 t4 t5 # 0|0|1
        t4 # t1 t4 t5 RoughnessLabel # 0|1|0|partially rusty...  2.00E-3
        Rettangolare;Rettangolare # Circolare Rettangolare # 0|1
        p_mbar;p_mbar # p_bar p_mbar LabelUnit_0 LabelUnit_3 # 0|1|[mbar]|[mbar]
        Tabella;Tabella # Grafico Tabella sintub # 0|1|0
        Cor2 # Cor1 Cor2 # 1|0)");
    project.settings.FluidCompressibility = 1;
    Walk(R"(Cor2 # Cor1 Cor2 # 0|1
            Cor1 # Cor1 Cor2 # 1|0)");
}

TEST_F(MainWindow, ToolBarRunsTheCommandsAndIsRememberedHidden) {
    const auto& bar = Child<QToolBar>("ToolBar");
    const auto press = [&](const char* item) {
        for (QAction* action : bar.actions()) {
            if (action->objectName() == item) action->trigger();
        }
    };
    boxes.Expect(kLeaveProject, Answer::Cancel).Expect(kSelectAFluid);
    press("Nuovo");
    press("Calcola");
    Walk("sintub # enabled Calcola #");
    for (const bool shown : {false, true}) {
        Do("BarraStrumenti");
        EXPECT_EQ(bar.isVisible(), shown);
        const auto next = std::make_unique<Program>(folder.Path(), boxes);
        const MDI nextWindow(*next);
        EXPECT_EQ(next->shell.ToolBarShown, shown) << "in the next run";
    }
}

TEST_F(MainWindow, RecentFilesAreOfferedUntilTheyAreGone) {
    const auto& menu = Child<QMenu>("Recenti");
    EXPECT_FALSE(menu.menuAction()->isVisible());
    for (const char* name : {"a.iv", "b.iv"}) {
        ASSERT_TRUE(WriteProject(project, folder / name));
        OpenFile(*mdi, folder / name);
    }
    ASSERT_EQ(menu.actions().size(), 2);
    std::filesystem::remove(folder / "b.iv");
    boxes.Expect(kFileMissing);
    for (int i = 0; i < 2; ++i) {  // a file that is gone changes nothing
        Choose("Recenti_1");
        QApplication::processEvents();
        EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [a.iv]");
    }
    EXPECT_EQ(menu.actions().size(), 1);
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
