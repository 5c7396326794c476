// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QTest>
#include <memory>
#include <stdexcept>

#include "support/scripted_boxes.h"
#include "support/temp_folder.h"
#include "ui/frame/file_commands.h"
#include "ui/frame/mdi.h"
#include "ui/kit/child_window.h"
#include "ui/kit/child_windows.h"
#include "ui/program.h"

namespace idrova {

/// The whole main window on an empty working folder, its message boxes scripted.
class MainWindow : public testing::Test {
  public:
    ~MainWindow() override { EXPECT_EQ(QApplication::activeModalWidget(), nullptr); }

  protected:
    MainWindow() {
        program->lastFolder = folder.Path();
        mdi = std::make_unique<MDI>(*program);
        mdi->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(mdi.get()));
    }

    /// The control of this name, of those in `window` if there is one.
    template <typename Control>
    Control& Child(const QString& name) {
        auto* control = window != nullptr ? window->findChild<Control*>(name) : nullptr;
        if (control == nullptr) control = mdi->findChild<Control*>(name);
        if (control == nullptr) throw std::out_of_range(name.toStdString());
        return *control;
    }

    QAction& Item(const char* name) { return *mdi->findChild<QAction*>(name); }
    void Choose(const char* name) { Item(name).trigger(); }

    /// The open child window of this name; null when there is none.
    ChildWindow* Window(const char* name) { return mdi->Windows().Find(name); }

    /// Opens a window by its menu item and looks for controls in it from then on.
    void Open(const char* item, const char* name) {
        Choose(item);
        window = Window(name);
        if (window == nullptr) throw std::out_of_range(name);
    }

    /// "Command1;Text1=5;Text1:5;Combo1#2;Text1!" clicks, types over, puts a text in at once,
    /// chooses position 2 or moves there, presses Return.
    void Do(const QString& script) {
        for (const QString& step : script.split(';')) {
            const auto sign = step.indexOf(QRegularExpression("[=:#!]"));
            const QString name = step.left(sign);
            if (sign < 0) {
                Child<QAbstractButton>(name).click();
            } else if (step[sign] == '!') {
                Child<QWidget>(name).setFocus();
                QTest::keyClick(&Child<QWidget>(name), Qt::Key_Return);
            } else if (step[sign] == '#') {
                MoveTo(Child<QWidget>(name), step.mid(sign + 1).toInt());
            } else {
                Type(Child<QWidget>(name), step.mid(sign + 1), step[sign] == '=');
            }
        }
    }

    /// What the controls show, "30.|10.": their text, caption or "1" for a chosen option.
    QString Shown(const QString& names) {
        QStringList texts;
        for (const QString& name : names.split(' ')) {
            const QWidget& control = Child<QWidget>(name);
            const auto* button = qobject_cast<const QAbstractButton*>(&control);
            const auto* list = qobject_cast<const QComboBox*>(&control);
            const auto* group = qobject_cast<const QGroupBox*>(&control);
            texts += button != nullptr  ? (button->isChecked() ? "1" : "0")
                     : list != nullptr  ? list->currentText()
                     : group != nullptr ? group->title()
                                        : control.property("text").toString();
        }
        return texts.join('|');
    }

    /// Those of the controls that are enabled.
    QString Enabled(const QString& names) {
        QStringList enabled;
        for (const QString& name : names.split(' ')) {
            if (Child<QWidget>(name).isEnabled()) enabled += name;
        }
        return enabled.join(' ');
    }

    TempFolder folder;
    ScriptedBoxes boxes;
    std::unique_ptr<Program> program = std::make_unique<Program>(folder.Path(), boxes);
    std::unique_ptr<MDI> mdi;
    QPointer<QWidget> window;
    Project& project = program->project;

  private:
    static void MoveTo(QWidget& control, int position) {
        if (auto* list = qobject_cast<QComboBox*>(&control)) return list->setCurrentIndex(position);
        dynamic_cast<QAbstractSlider&>(control).setValue(position);
    }
    static void Type(QWidget& control, const QString& text, bool byKeys) {
        auto* list = qobject_cast<QComboBox*>(&control);
        auto& field = list != nullptr ? *list->lineEdit() : dynamic_cast<QLineEdit&>(control);
        field.selectAll();
        if (byKeys) QTest::keyClick(&field, Qt::Key_Delete);
        if (byKeys) QTest::keyClicks(&field, text);
        if (!byKeys) field.insert(text);
        if (list != nullptr) QTest::keyClick(&field, Qt::Key_Tab);
    }
};

}  // namespace idrova
