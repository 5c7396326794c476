// SPDX-License-Identifier: GPL-3.0-or-later
#include <QPushButton>
#include <QRadioButton>
#include <set>

#include "main_window.h"
#include "physdata/messages.h"
#include "results/messages.h"
#include "table/messages.h"

namespace idrova {
namespace {

/// Presses Tab often enough to come round and returns where it led; every stop must say what it is.
std::set<QString> ReachedByTab(const QWidget& window) {
    std::set<QString> reached;
    for (int i = 0; i < 30; ++i) {
        QWidget* control = QApplication::focusWidget();
        EXPECT_TRUE(window.isAncestorOf(control));
        const bool isButton = qobject_cast<const QAbstractButton*>(control) != nullptr;
        EXPECT_TRUE(isButton || !control->accessibleName().isEmpty())
            << control->objectName().toStdString();
        reached.insert(control->objectName());
        QTest::keyClick(control, Qt::Key_Tab);
    }
    return reached;
}

TEST_F(MainWindow, DataWindowOpensOnceIsUsedByKeyboardAndClosesByEscape) {
    const struct {
        const char *item, *window, *caption, *defaultButton;
    } windows[] = {{"Fluido", "FrmFlu", "Idrova - Fluid", "Command1"},
                   {"Pompe", "FrmPompa", "Idrova - Pump", "Command2"},
                   {"PerditeCon", "FrmPerCon", "Idrova - Concentrated drop", "Command2"},
                   {"tt", "FrmRug", "Idrova - roughness", "Command1"},
                   {"Veloce", "FrmVel", "Idrova - fast data", ""},
                   {"Editor", "FrmCon", "Idrova - Configuration", "Command1"},
                   {"Temperatura", "FrmPMin", "Idrova - calculation data", "Command1"},
                   {"Limits", "FrmLim", "Idrova - limits", "Command1"},
                   {"PresMini", "FrmPMin", "Idrova - calculation data", "Command1"}};
    for (const auto& c : windows) {
        SCOPED_TRACE(c.item);
        Open(c.item, c.window);
        EXPECT_EQ(window->windowTitle(), c.caption);
        for (const QPushButton* button : window->findChildren<QPushButton*>()) {
            EXPECT_EQ(button->isDefault(), button->objectName() == c.defaultButton);
        }
        const QWidget* first = window;
        Open(c.item, c.window);
        EXPECT_EQ(window, first);
        const std::set<QString> reached = ReachedByTab(*window);
        for (const QWidget* control : window->findChildren<QWidget*>()) {
            const bool inGroup = qobject_cast<const QRadioButton*>(control) != nullptr;
            if ((control->focusPolicy() & Qt::TabFocus) == 0 || inGroup) continue;
            if (control->focusProxy() != nullptr || !control->isVisible()) continue;
            EXPECT_TRUE(reached.contains(control->objectName()))
                << control->objectName().toStdString();
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        EXPECT_EQ(Window(c.window), nullptr);
    }
}

TEST_F(MainWindow, TypedSettingsAreTaken) {
    Open("tt", "FrmRug");
    QTest::keyClicks(QApplication::focusWidget(), ".002");
    const QString editor = QString::fromStdString((folder / "my editor").string());
    PutFile(folder / "my editor", "");
    boxes.Expect(kEditorNotFound);
    Walk(R"(
        # Text1 # .002 # typing replaces what the window opened with
        Text1=-0.001;Command1 # FrmRug # Idrova - roughness # a negative one is not taken
        Text1=.00025;Text1! # FrmRug RoughnessLabel tt t1 # |2.50E-4|1|0
        Editor>FrmCon;Command1;Combo1=)" +
         editor + R"(;Command1 # FrmCon #
        Editor>FrmCon # Combo1 # )" +
         editor);
    EXPECT_EQ(project.settings.Roughness, 0.00025);

    project.settings.BasePressure = 202650;
    project.settings.FluidTemperature = 20.5F;
    Walk(R"(PresMini>FrmPMin # Text1 Text2 # 2|20.5
            Text1=3;Text2=cold;Command1)");
    EXPECT_EQ(project.settings.BasePressure, 303975);
    EXPECT_EQ(project.settings.FluidTemperature, 0);

    boxes.Expect(kLimitIsNoNumber);
    Walk(R"(Limits>FrmLim;Text1=2;Text4=high;Command1 # Text4 # high
            Text4=3;Command1 # FrmLim #)");
    EXPECT_EQ(program->limits, (Limits{.velocity = 2, .highestPressure = 303975}));

    project.numtubo = project.CurrentPipe = 1;
    boxes.Expect(kCancelLengths, Answer::No);
    Walk(R"(Veloce>FrmVel;Command2;Text1=3600;Text2=-25 # Text2 # 0
            Text2=100;Combo2#3;Text2!;Text3!;Text1!)");
    EXPECT_EQ(project.Pipes[1].FlowRate, 1);
    window = mdi->findChild<QWidget*>("FrmCom");
    EXPECT_EQ(Shown("Text6 Text7"), "100|27.9");
}

}  // namespace
}  // namespace idrova
