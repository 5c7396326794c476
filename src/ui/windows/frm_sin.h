// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "base/result.h"
#include "hydraulics/single_pipe.h"
#include "model/settings.h"
#include "ui/kit/child_window.h"

class QComboBox;
class QGridLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QToolButton;
class QTimer;

namespace idrova {

class ColouredField;
class ComputedField;
class FlowArrow;
struct Program;

/// One pipe on its own: of its pressures, length, flow rate and diameter one is computed from the
/// others at every change, of a setting too. Report and refusals wait until typing pauses.
class FrmSin : public ChildWindow {
  public:
    explicit FrmSin(Program& program);

    void ShowState() override;
    /// Tells at once what waits for a pause.
    void TakeEdits() override;

  protected:
    /// Up and Down are the arrow buttons of the box that has the keyboard.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    struct Controls {
        ColouredField* box = nullptr;
        QToolButton* more = nullptr;  ///< null for the diameter, as `less`
        QToolButton* less = nullptr;
        QRadioButton* unknown = nullptr;
    };

    void LayOut();
    void SetTabOrder();
    void AddQuantity(QGridLayout& grid, int row, PipeQuantity quantity, const QString& point = {});
    void AddDiameterList(QGridLayout& grid, int row);
    void AddDirection(QGridLayout& grid, int row);
    void AddUnknownChoice();
    QToolButton* Arrow(PipeQuantity quantity, int steps, const QString& what);
    Controls& Of(PipeQuantity quantity) { return controls_[static_cast<int>(quantity)]; }

    void TakeTyped(PipeQuantity quantity);
    void Step(PipeQuantity quantity, int steps);
    void ChooseUnknown(PipeQuantity quantity);
    void ChooseSize(int position);
    void TakeLossSum();
    void PickLosses();
    void Turn();
    void ShowUnknown();
    void ShowDirection();
    void ShowResults();
    void Recompute();
    void Tell();
    /// The failure to write a report, unless the last one failed too: told once, not with every
    /// pause.
    Status FirstFailure(const Status& stored);

    Program& program_;
    SinglePipe pipe_;
    Settings computedWith_;  ///< the settings that the result belongs to
    bool isSolved_ = false;  ///< the unknown's box shows what the others give
    bool isTold_ = true;     ///< the last computation has been reported
    std::array<Controls, kPipeQuantities> controls_;
    QComboBox* sizes_;
    QLineEdit* lossSum_;
    QPushButton* turnButton_;
    ComputedField* velocity_;
    ComputedField* dropPerMetre_;
    FlowArrow* arrow_;
    QTimer* directionTimer_;
    QTimer* pauseTimer_;
    bool reportFailed_ = false;
};

}  // namespace idrova
