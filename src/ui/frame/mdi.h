// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>
#include <memory>
#include <string>

namespace idrova {

class ChildWindows;
class ComputeAtOnce;
class FrmCom;
class FrmHelp;
class FrmProb;
class MenuBar;
class RecentMenu;
class SettingsBar;
class StatusLine;
class ToolBar;
struct Program;

/// The main window: menu bar, area of the child windows, command panel, hint window, list of
/// problems, status bar.
/// Shows the state of the program, which the commands change.
class MDI : public QMainWindow {
  public:
    /// Initialises the project and makes the first fluid of the database the current one.
    explicit MDI(Program& program);
    ~MDI() override;

    Program& State() { return program_; }
    MenuBar& Menu() { return *menu_; }
    RecentMenu& Recent() { return *recent_; }
    ChildWindows& Windows() { return *windows_; }
    FrmCom& Panel() { return *panel_; }
    FrmHelp& Hints() { return *hints_; }

    /// Opens the window of the working mode and closes those of the others.
    void OpenModeWindow();

    /// Every window, check marks, panel, hint window, status bar and title as the state has them;
    /// what shows it already is left alone.
    void ShowState();

    /// Says something in the status bar, until the next command.
    void Say(const std::string& words);

    /// Opens the list of problems, beside the hints.
    void ShowProblems();

    /// Moves the keyboard between the child windows and the command panel.
    void SwitchFocus(bool backwards);

    /// Has the window of the working mode take what is being typed.
    void TakeEdits();

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void PlaceOnScreen();
    void ShowOutcome();
    void ShowTitle();

    Program& program_;
    std::unique_ptr<MenuBar> menu_;
    std::unique_ptr<RecentMenu> recent_;
    std::unique_ptr<StatusLine> statusLine_;
    ToolBar* toolBar_;
    SettingsBar* settingsBar_;
    ChildWindows* windows_;
    FrmCom* panel_;
    FrmHelp* hints_;
    FrmProb* problems_;
    std::unique_ptr<ComputeAtOnce> atOnce_;
    QString title_;
};

}  // namespace idrova
