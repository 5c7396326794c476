// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "base/result.h"
#include "hydraulics/single_pipe.h"
#include "ui/kit/child_window.h"

class QComboBox;
class QGridLayout;
class QLineEdit;
class QRadioButton;
class QToolButton;
class QTimer;

namespace idrova {

class FlowArrow;
struct Program;

/// One pipe on its own: of its pressures, length, flow rate and diameter one is computed from the
/// others at every change.
class FrmSin : public ChildWindow {
  public:
    explicit FrmSin(Program& program);

  private:
    struct Controls {
        QLineEdit* box = nullptr;
        QToolButton* more = nullptr;  ///< null for the diameter, as `less`
        QToolButton* less = nullptr;
        QRadioButton* unknown = nullptr;
    };

    void AddQuantity(QGridLayout& grid, int row, PipeQuantity quantity, const QString& point = {});
    void AddDiameterList(QGridLayout& grid, int row);
    void AddDirection(QGridLayout& grid, int row);
    QToolButton* Arrow(PipeQuantity quantity, int steps, const QString& what);
    Controls& Of(PipeQuantity quantity) { return controls_[static_cast<int>(quantity)]; }

    void TakeTyped(PipeQuantity quantity);
    void Step(PipeQuantity quantity, int steps);
    void ChooseUnknown(PipeQuantity quantity);
    void ChooseSize(int position);
    void Turn();
    void ShowDirection();
    void Recompute();
    /// The failure to write a report, unless the last one failed too: told once, not with every
    /// key.
    Status FirstFailure(const Status& stored);

    Program& program_;
    SinglePipe pipe_;
    std::array<Controls, kPipeQuantities> controls_;
    QComboBox* sizes_;
    QPushButton* turnButton_;
    FlowArrow* arrow_;
    QTimer* directionTimer_;
    bool reportFailed_ = false;
};

}  // namespace idrova
