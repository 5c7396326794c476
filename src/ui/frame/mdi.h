// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <filesystem>
#include <memory>
#include <string_view>

namespace idrova {

class ChildWindows;
class FrmCom;
class FrmHelp;
class MenuBar;
class StatusLine;
struct Program;

/// The main window: menu bar, area of the child windows, command panel, hint window, status bar.
/// Shows the state of the program; the commands change it and call back.
class MDI : public QMainWindow {
  public:
    /// Initialises the project and makes the first fluid of the database the current one.
    explicit MDI(Program& program);
    ~MDI() override;

    Program& State() { return program_; }
    MenuBar& Menu() { return *menu_; }
    ChildWindows& Windows() { return *windows_; }
    FrmCom& Panel() { return *panel_; }
    FrmHelp& Hints() { return *hints_; }

    /// Opens a project file without asking.
    void OpenFile(const std::filesystem::path& path);

    /// Opens the window of the working mode and closes those of the others.
    void ShowMode();

    /// Check marks, panel, hint window and status bar as the state has them.
    void ShowSettings();

    /// Has the window of the working mode show the network anew.
    void ShowNetwork();

    /// Moves the keyboard between the child windows and the command panel.
    void SwitchFocus(bool backwards);

    /// Has the window of the working mode take what is being typed.
    void TakeEdits();

    /// `name` is the project's name as the title shows it.
    void ShowTitle(std::string_view name);
    void ShowOutcome();

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void PlaceOnScreen();

    Program& program_;
    std::unique_ptr<MenuBar> menu_;
    std::unique_ptr<StatusLine> statusLine_;
    ChildWindows* windows_;
    FrmCom* panel_;
    FrmHelp* hints_;
    QString title_;
};

}  // namespace idrova
