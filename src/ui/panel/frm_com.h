// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDockWidget>
#include <functional>

#include "ui/panel/panel_parts.h"

class QLabel;
class QPushButton;
class QSlider;
class QVBoxLayout;

namespace idrova {

class ComponentsFrame;
class DirectionsFrame;
class PipeFrame;
class PressuresFrame;
struct Program;

/// The command panel beside the drawing: the settings in use, the frames that edit the selected
/// pipe, and the buttons. Stays open in every mode.
class FrmCom : public QDockWidget {
  public:
    FrmCom(Program& program, QWidget* parent);

    /// Everything that the panel shows, as settings, project and editor now stand.
    void ShowState();

    /// Shows everywhere what was computed while something may be typed here, which stays as it is.
    void ShowComputed();

    /// Gives the keyboard to the first control that takes it or, backwards, to the last.
    void TakeFocus(bool backwards);

    /// "Calculate by graphic" was pressed.
    std::function<void()> calculate = [] {};

  protected:
    void closeEvent(QCloseEvent* event) override;
    /// Outside dialogs a button ignores Return.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void AddSettings(QVBoxLayout& column);
    void AddFrames(QVBoxLayout& column);
    void AddButtons(QVBoxLayout& column);
    void ShowEdited();
    void ShowFrames();
    void ShowEnabling();
    void SwitchData();
    void Delete();
    void RefuseGridDimension();

    Program& program_;
    PanelContext context_;
    bool isEdited_ = false;  ///< by a frame: the boxes keep what was typed as it was typed
    QLabel* fluidName_ = nullptr;
    QLabel* fluidProperties_ = nullptr;
    QLabel* roughness_ = nullptr;
    PipeFrame* pipeFrame_;
    PressuresFrame* pressuresFrame_;
    DirectionsFrame* directionsFrame_;
    ComponentsFrame* componentsFrame_;
    QPushButton* calculateButton_ = nullptr;
    QPushButton* dataButton_ = nullptr;
    QPushButton* deleteButton_ = nullptr;
    QSlider* gridSlider_ = nullptr;
};

}  // namespace idrova
