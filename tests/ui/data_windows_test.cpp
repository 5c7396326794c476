// SPDX-License-Identifier: GPL-3.0-or-later
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <set>

#include "data_window.h"
#include "results/editor_setting.h"
#include "results/messages.h"
#include "table/messages.h"

namespace idrova {
namespace {

const struct {
    const char* item;
    const char* window;
    const char* caption;
    const char* defaultButton;
} kWindows[] = {{"Fluido", "FrmFlu", "Idrova - Fluid", "Command1"},
                {"Pompe", "FrmPompa", "Idrova - Pump", "Command2"},
                {"PerditeCon", "FrmPerCon", "Idrova - Concentrated drop", "Command2"},
                {"tt", "FrmRug", "Idrova - roughness", "Command1"},
                {"Veloce", "FrmVel", "Idrova - fast data", ""},
                {"Editor", "FrmCon", "Idrova - Configuration", "Command1"},
                {"Temperatura", "FrmPMin", "Idrova - calculation data", "Command1"},
                {"PresMini", "FrmPMin", "Idrova - calculation data", "Command1"}};

TEST_F(DataWindow, OpensOnceClosesByEscapeAndOpensAgain) {
    for (const auto& c : kWindows) {
        Open(c.item, c.window);
        EXPECT_EQ(window->windowTitle(), c.caption);
        for (const QPushButton* button : window->findChildren<QPushButton*>()) {
            EXPECT_EQ(button->isDefault(), button->objectName() == c.defaultButton) << c.window;
        }
        const ChildWindow* first = window;
        Open(c.item, c.window);
        EXPECT_EQ(window, first);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        EXPECT_EQ(Window(c.window), nullptr) << c.window;
        Open(c.item, c.window);
        window->CloseWindow();
    }
}

TEST_F(DataWindow, TabReachesEveryControlAndEachSaysWhatItIs) {
    for (const auto& c : kWindows) {
        Open(c.item, c.window);
        std::set<QString> reached;
        for (int i = 0; i < 30; ++i) {
            const QWidget* control = QApplication::focusWidget();
            ASSERT_TRUE(window->isAncestorOf(control)) << c.window;
            const auto* button = dynamic_cast<const QAbstractButton*>(control);
            EXPECT_FALSE(button == nullptr && control->accessibleName().isEmpty())
                << c.window << ' ' << control->objectName().toStdString();
            reached.insert(control->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        for (const QWidget* control : window->findChildren<QWidget*>()) {
            const bool inGroup = dynamic_cast<const QRadioButton*>(control) != nullptr;
            if ((control->focusPolicy() & Qt::TabFocus) == 0 || inGroup) continue;
            if (control->focusProxy() != nullptr || !control->isVisible()) continue;
            EXPECT_TRUE(reached.contains(control->objectName()))
                << c.window << ' ' << control->objectName().toStdString();
        }
        window->CloseWindow();
    }
}

TEST_F(DataWindow, ATypedRoughnessIsTakenUnlessNegative) {
    Open("tt", "FrmRug");
    EXPECT_EQ(Text("Text1"), ".0001");
    EXPECT_TRUE(Item("t1").isChecked());
    Type("Text1", "-0.001");
    Press("Command1");
    ASSERT_NE(Window("FrmRug"), nullptr);
    EXPECT_EQ(program->project.Roughness, 0.0001);
    Type("Text1", ".00025");
    QTest::keyClick(&Child<QLineEdit>("Text1", window), Qt::Key_Return);
    EXPECT_EQ(Window("FrmRug"), nullptr);
    EXPECT_EQ(program->project.Roughness, 0.00025);
    EXPECT_EQ(Child<QLabel>("RoughnessLabel").text(), "2.50E-4");
    EXPECT_TRUE(Item("tt").isChecked());
    EXPECT_FALSE(Item("t1").isChecked());
}

TEST_F(DataWindow, CalculationDataAreShownAndTaken) {
    program->project.BasePressure = 202650;
    program->project.FluidTemperature = 20.5F;
    Open("PresMini", "FrmPMin");
    EXPECT_EQ(Text("Text1"), "2");
    EXPECT_EQ(Text("Text2"), "20.5");
    Type("Text1", "3");
    Type("Text2", "cold");
    Press("Command1");
    EXPECT_EQ(Window("FrmPMin"), nullptr);
    EXPECT_EQ(program->project.BasePressure, 303975);
    EXPECT_EQ(program->project.FluidTemperature, 0);
}

TEST_F(DataWindow, TheEditorMustExist) {
    const QString editor = QString::fromStdString((folder / "my editor").string());
    PutFile(folder / "my editor", "");
    boxes.Expect(kEditorNotFound).Expect(kEditorNotFound);
    Open("Editor", "FrmCon");
    EXPECT_EQ(Label("Label1"), "Text editor");
    EXPECT_EQ(List().currentText(), "Choose an editor or define a new editor");
    EXPECT_EQ(List().count(), static_cast<int>(EditorSuggestions().size()));
    Press("Command1");
    List().clearEditText();
    Press("Command1");
    ASSERT_NE(Window("FrmCon"), nullptr);
    TypeName(editor);
    Press("Command1");
    EXPECT_EQ(Window("FrmCon"), nullptr);
    EXPECT_EQ(FileBytes(folder / "IV.CFG"), editor.toStdString() + "\r\n");
    Open("Editor", "FrmCon");
    EXPECT_EQ(List().currentText(), editor);
    Press("Command2");
    EXPECT_EQ(Window("FrmCon"), nullptr);
}

TEST_F(DataWindow, FastSettingsReachEveryPipe) {
    program->project.numtubo = 2;
    boxes.Expect(kCancelFlowRates, Answer::No)
        .Expect(kCancelLengths, Answer::No)
        .Expect(kCancelDiameters, Answer::No);
    Open("Veloce", "FrmVel");
    for (const char* button : {"Command1", "Command2", "Command3"}) Press(button);
    Type("Text1", "3600");
    Type("Text2", "12");
    List("Combo2").setCurrentIndex(3);
    EXPECT_EQ(Text("Text3"), "27.9");
    for (const char* field : {"Text1", "Text2", "Text3"}) {
        QTest::keyClick(&Child<QLineEdit>(field, window), Qt::Key_Return);
    }
    for (int i = 1; i <= 2; ++i) {
        EXPECT_EQ(program->project.Pipes[i].FlowRate, 1);
        EXPECT_EQ(program->project.Pipes[i].Length, 12);
        EXPECT_EQ(program->project.Pipes[i].Diameter, .0279F);
    }
    Type("Text2", "-5");
    EXPECT_EQ(Text("Text2"), "0");
    EXPECT_EQ(Window("FrmVel"), window);
}

}  // namespace
}  // namespace idrova
