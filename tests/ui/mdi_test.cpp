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

TEST_F(MainWindow, StartsWithAnEmptyProjectAndEndsAsAsked) {
    EXPECT_EQ(mdi->objectName(), "MDI");
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [New project]");
    EXPECT_EQ(Window("FrmCel")->windowTitle(), "Idrova - plant drawing");
    EXPECT_EQ(mdi->Panel().windowTitle(), "Idrova - Commands");
    EXPECT_EQ(mdi->Hints().windowTitle(), "Idrova - Help");
    EXPECT_EQ(Shown("Label2 RoughnessLabel StatusMode StatusFluid"),
              "first point of a pipe|zincate steel\t  1.00E-4|Mode: Graphic|No fluid");
    EXPECT_FALSE(mdi->Panel().close());
    EXPECT_TRUE(mdi->Panel().isVisible());
    EXPECT_LT(mdi->height(), mdi->screen()->availableGeometry().height());
    program->titleName = "a[*]b";
    program->changed();
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [a[*][*]b]") << "shown with one star";
    Window("FrmCel")->CloseWindow();
    Choose("p_mbar");
    EXPECT_EQ(Window("FrmCel"), nullptr) << "only a new network brings it back";
    boxes.Expect(kLeaveProject, Answer::Ok);
    Choose("Nuovo");
    EXPECT_NE(Window("FrmCel"), nullptr);

    const auto hintsAreShown = [this] {
        EXPECT_EQ(mdi->Hints().isVisible(), Item("Helpslinea").isChecked());
        return program->shell.HintsShown;
    };
    Choose("Helpslinea");
    EXPECT_FALSE(hintsAreShown());
    Choose("Helpslinea");
    mdi->showMinimized();
    QApplication::processEvents();
    mdi->showNormal();
    EXPECT_TRUE(hintsAreShown()) << "minimising does not close them";
    mdi->Hints().close();
    EXPECT_FALSE(hintsAreShown());

    project.TableRows[2].StartPoint = 1;
    boxes.Expect(kExitQuestion, Answer::Cancel).Expect(kExitQuestion, Answer::Ok);
    Choose("Esci");
    EXPECT_TRUE(mdi->isVisible());
    EXPECT_FALSE(std::filesystem::exists(folder / kUnsavedFile));
    Choose("Esci");
    EXPECT_FALSE(mdi->isVisible());
    EXPECT_TRUE(std::filesystem::exists(folder / kUnsavedFile));
    std::filesystem::remove(folder / kUnsavedFile);
    mdi->show();
    EXPECT_TRUE(mdi->close()) << "by its frame, without a question";
    EXPECT_TRUE(std::filesystem::exists(folder / kUnsavedFile));
    std::filesystem::remove_all(folder.Path());
    boxes.Expect({UnsavedLost("Cannot write " + (folder / kUnsavedFile).string() +
                              ": No such file or directory"),
                  kExitQuestion.title});
    mdi->show();
    EXPECT_TRUE(mdi->close());
}

TEST_F(MainWindow, HelpShowsTheManualAndHintsFitTheMode) {
    QTextBrowser viewer;
    QDesktopServices::setUrlHandler("file", &viewer, "setSource");
    PutFile(folder / "manual.pdf", "manual");
    boxes.Expect(kManualNotice).Expect(kManualNotice);
    Choose("Help");
    EXPECT_EQ(mdi->statusBar()->currentMessage(), "The user manual was not found");
    program->shipped.manual = folder / "manual.pdf";
    Choose("Help");
    EXPECT_EQ(viewer.source().toLocalFile(), PathToQt(folder / "manual.pdf"));
    QDesktopServices::unsetUrlHandler("file");
    EXPECT_EQ(mdi->statusBar()->currentMessage(), "")
        << "a command takes the words of the one before away";
    mdi->Say("kept");
    mdi->statusBar()->showMessage("a tip");
    mdi->statusBar()->clearMessage();
    EXPECT_EQ(mdi->statusBar()->currentMessage(), "kept") << "a tip only comes over it";
    for (const auto& [mode, hint] : {std::pair("Tabella", "compute the table"),
                                     std::pair("sintub", "the unknown one is computed at once")}) {
        Choose(mode);
        Choose("Helpslinea");
        EXPECT_EQ(Shown("Label4"), hint);
    }
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
    Choose("Tabella");
    EXPECT_EQ(Window("FrmVel"), nullptr) << "it acts on the drawing";
    EXPECT_FALSE(Item("Veloce").isEnabled());
}

TEST_F(MainWindow, AboutWindowOpensProgressivelyAndStaysInReach) {
    QWidget* drawing = Window("FrmCel")->parentWidget();
    drawing->showMaximized();
    Open("Logo", "FrmLogo");
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [New project]");
    EXPECT_EQ(Shown("Label1"), "ver. 2.6.3");
    EXPECT_LT(window->height(), 100);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window->size() == QSize(400, 300); }));
    window->parentWidget()->move(900, 600);
    mdi->resize(700, 500);
    QApplication::processEvents();
    const QRect area = mdi->Windows().viewport()->rect();
    EXPECT_TRUE(area.contains(window->parentWidget()->pos()));
    EXPECT_EQ(drawing->geometry(), area);
}

/// What a user finds: the entries of each menu, by the menu's name.
using Menus = std::map<QString, QList<QAction*>>;

void CollectMenu(const QList<QAction*>& actions, const QString& menu, Menus& found) {
    for (QAction* action : actions) {
        if (action->isSeparator()) continue;
        found[menu].push_back(action);
        if (QMenu* sub = action->menu()) CollectMenu(sub->actions(), sub->objectName(), found);
    }
}

TEST_F(MainWindow, MenuBarShowsTheTableAndKeepsOneOfEachGroupChecked) {
    Menus menus;
    CollectMenu(mdi->menuBar()->actions(), "", menus);
    std::map<QString, qsizetype> next;
    std::map<QString, std::set<QString>> keys;
    std::set<QString> shortcuts{"F2"};  // edits a cell of the table
    for (const MenuEntry& entry : MenuTable()) {
        SCOPED_TRACE(std::string(entry.name));
        const QString menu = ToQt(entry.parent);
        ASSERT_LT(next[menu], menus[menu].size());
        const QAction& action = *menus[menu][next[menu]++];
        const bool isMenu = entry.kind == MenuKind::Menu;
        EXPECT_EQ(isMenu ? action.menu()->objectName() : action.objectName(), ToQt(entry.name));
        EXPECT_EQ(action.text().remove('&'), ToQt(entry.caption));
        EXPECT_EQ(action.isChecked(), IsChecked(entry, project.settings, program->shell));
        const QString keysOf =
            QKeySequence::listToString(action.shortcuts(), QKeySequence::PortableText);
        EXPECT_EQ(keysOf, ToQt(entry.shortcut));
        EXPECT_TRUE(keysOf.isEmpty() || shortcuts.insert(keysOf).second);
        EXPECT_EQ(isMenu, action.statusTip().isEmpty());
        const QString key = QKeySequence::mnemonic(action.text()).toString();
        EXPECT_TRUE(!key.isEmpty() && keys[menu].insert(key).second) << "no mnemonic of its own";
    }
    for (const auto& [menu, actions] : menus) EXPECT_EQ(actions.size(), next[menu]);

    for (const char* name : {"t1", "t5", "t5", "Rettangolare", "Rettangolare", "Circolare",
                             "p_mbar", "p_mbar", "Tabella", "sintub", "Grafico", "t4"}) {
        Choose(name);
        EXPECT_TRUE(Item(name).isChecked()) << name;
        for (const char* group : {"Rugosita", "Sezione", "Pressione", "Modalita", "Correlazioni"}) {
            const auto isChecked = [](const QAction* action) { return action->isChecked(); };
            EXPECT_EQ(std::ranges::count_if(menus[group], isChecked), 1) << group << " " << name;
        }
    }
    EXPECT_EQ(Shown("RoughnessLabel LabelUnit_0 LabelUnit_3"),
              "partially rusty...  2.00E-3|[mbar]|[mbar]");
    boxes.Expect(kNotCompressible);
    Choose("Cor2");
    EXPECT_TRUE(Item("Cor1").isChecked());
    project.settings.FluidCompressibility = 1;
    for (const char* name : {"Cor2", "Cor1"}) {
        Choose(name);
        EXPECT_TRUE(Item(name).isChecked());
    }
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
    Choose("sintub");
    EXPECT_FALSE(Item("Calcola").isEnabled());
    for (const bool shown : {false, true}) {
        Choose("BarraStrumenti");
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
    Choose("Recenti_1");
    QApplication::processEvents();
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [a.iv]");
    boxes.Expect(kFileMissing);
    Choose("Recenti_1");
    QApplication::processEvents();
    EXPECT_EQ(mdi->windowTitle(), "Idrova 2.6.3 - [a.iv]") << "a file that is gone changes nothing";
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
