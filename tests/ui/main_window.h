// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QTest>
#include <memory>
#include <stdexcept>

#include "support/scripted_boxes.h"
#include "support/temp_folder.h"
#include "ui/child_window.h"
#include "ui/child_windows.h"
#include "ui/mdi.h"
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

    /// The control of this name; in the window `in` when that is given.
    template <typename Control>
    Control& Child(const char* name, const QWidget* in = nullptr) {
        auto* control = (in != nullptr ? in : mdi.get())->findChild<Control*>(name);
        if (control == nullptr) throw std::out_of_range(name);
        return *control;
    }

    QAction& Item(const char* name) { return Child<QAction>(name); }
    void Choose(const char* name) { Item(name).trigger(); }

    /// The open child window of this name; null when there is none.
    ChildWindow* Window(const char* name) { return mdi->Windows().Find(name); }

    TempFolder folder;
    ScriptedBoxes boxes;
    std::unique_ptr<Program> program = std::make_unique<Program>(folder.Path(), boxes);
    std::unique_ptr<MDI> mdi;
};

}  // namespace idrova
