// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTest>
#include <algorithm>
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
    ~MainWindow() override {
        mdi->hide();  // a field with the keyboard tells what was typed while all is there
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

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

    /// Takes steps, parted by ";": "Command1" clicks a button or chooses a menu item,
    /// "Fluido>FrmFlu" opens a window, "Text1=5" types over, "Text1:5" puts in at once, "Combo1#2"
    /// chooses position 2 or moves there, "Text1!" presses Return in it, "Text1!Ctrl+Z" these keys.
    void Do(const QString& script) {
        for (const QString& step : script.split(';', Qt::SkipEmptyParts)) Take(step);
    }

    /// What is shown by the controls (their text, caption or, of an option, "1" when it is chosen),
    /// menu items (checked or not), windows (their title) and, after "message", the status bar,
    /// "30.|10.". With a "?" behind the name: "1" when it is visible; with a "*": the entries of
    /// the list, or the first column of the table.
    QString Shown(const QString& names) {
        QStringList texts;
        for (const QString& name : names.split(' ')) texts += TextOf(name);
        return texts.join('|');
    }

    /// Those of the controls and menu items that are enabled.
    QString Enabled(const QString& names) {
        QStringList enabled;
        for (const QString& name : names.split(' ')) {
            const auto* item = mdi->findChild<QAction*>(name);
            if (item != nullptr ? item->isEnabled() : Child<QWidget>(name).isEnabled())
                enabled += name;
        }
        return enabled.join(' ');
    }

    /// A walk through the windows. Each line takes steps, then may say what must be shown,
    /// "Text6=3 # Text6 Text7 # 3|500", or which of the controls must be enabled,
    /// "sintub # enabled Veloce #"; a reason may follow.
    void Walk(const QString& walk) {
        static const QRegularExpression mark("(^| +)#(?= |$)");
        for (const QString& line : walk.split('\n')) {
            const QStringList parts = line.trimmed().split(mark);
            Do(parts[0]);
            if (parts.size() < 3) continue;
            const QString names = parts[1].trimmed();
            const bool enabled = names.startsWith("enabled ");
            EXPECT_EQ((enabled ? Enabled(names.mid(8)) : Shown(names)).toStdString(),
                      parts[2].trimmed().toStdString())
                << line.toStdString();
        }
    }

    virtual void Take(const QString& step) {
        static const QRegularExpression form("^(\\w+)([=:#!>]?)(.*)$");
        const QRegularExpressionMatch part = form.match(step);
        const QString name = part.captured(1);
        const QString value = part.captured(3);
        const QChar sign = part.captured(2).isEmpty() ? QChar() : part.captured(2).front();
        auto* item = mdi->findChild<QAction*>(name);
        if (sign == '>') return Open(name.toLatin1(), value.toLatin1());
        if (sign.isNull() && item != nullptr) return item->trigger();
        if (sign.isNull()) return Child<QAbstractButton>(name).click();
        auto& control = Child<QWidget>(name);
        if (sign == '#') return MoveTo(control, value.toInt());
        if (sign != '!') return Type(control, value, sign == '=');
        control.setFocus();
        const QKeyCombination keys = QKeySequence(value.isEmpty() ? "Return" : value)[0];
        QTest::keyClick(&control, keys.key(), keys.keyboardModifiers());
    }

    virtual QString TextOf(const QString& name) {
        if (name.endsWith('?')) {
            const auto named = mdi->findChildren<QWidget*>(name.chopped(1));
            if (named.isEmpty() && !name.startsWith("Frm")) Child<QWidget>(name);  // throws
            return std::ranges::any_of(named, &QWidget::isVisible) ? "1" : "0";
        }
        if (name.endsWith('*')) return EntriesOf(Child<QWidget>(name.chopped(1)));
        if (name == "message") return mdi->statusBar()->currentMessage();
        if (name == "MDI") return mdi->windowTitle();
        if (name.startsWith("Frm")) {
            const ChildWindow* open = Window(name.toLatin1());
            return open == nullptr ? "" : open->windowTitle();
        }
        const auto* item = mdi->findChild<QAction*>(name);
        if (item != nullptr) return item->isChecked() ? "1" : "0";
        const QWidget& control = Child<QWidget>(name);
        const auto* button = qobject_cast<const QAbstractButton*>(&control);
        const auto* list = qobject_cast<const QComboBox*>(&control);
        const auto* group = qobject_cast<const QGroupBox*>(&control);
        return button != nullptr && button->isCheckable() ? (button->isChecked() ? "1" : "0")
               : list != nullptr                          ? list->currentText()
               : group != nullptr                         ? group->title()
                                                          : control.property("text").toString();
    }

    TempFolder folder;
    ScriptedBoxes boxes;
    std::unique_ptr<Program> program = std::make_unique<Program>(folder.Path(), boxes);
    std::unique_ptr<MDI> mdi;
    QPointer<QWidget> window;
    Project& project = program->project;

  private:
    static QString EntriesOf(const QWidget& control) {
        const auto* list = qobject_cast<const QComboBox*>(&control);
        const QAbstractItemModel& model =
            list != nullptr ? *list->model()
                            : *dynamic_cast<const QAbstractItemView&>(control).model();
        QStringList entries;
        for (int i = 0; i < model.rowCount(); ++i) entries += model.index(i, 0).data().toString();
        return entries.join(' ');
    }
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
