// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "physdata/pump_curve.h"
#include "physdata/pumps.h"
#include "ui/kit/child_window.h"

class QBoxLayout;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace idrova {

class NameList;
class PumpPlot;
struct Program;

/// The pumps: edits their database, shows the curve of the chosen one.
class FrmPompa : public ChildWindow {
  public:
    explicit FrmPompa(Program& program);

    /// The working points of an up-to-date computation.
    void ShowState() override;

  private:
    QBoxLayout* Data();
    QGridLayout* Rows();
    QBoxLayout* Buttons();

    PumpFields Fields() const;
    void ShowCurve(const PumpRecord& pump);

    void Choose(int position);
    void Evaluate();
    void Save();
    void Delete();

    Program& program_;
    PumpCurve curve_;     ///< of the pump last shown that has one
    PumpRecord charted_;  ///< the pump that the chart shows
    NameList* names_;
    QLineEdit* maxPrevalence_;
    QLineEdit* minFlow_;
    QLineEdit* minPrevalence_;
    QLineEdit* maxFlow_;
    QLabel* coefficientA_;
    QLabel* coefficientB_;
    QLabel* coefficientC_;
    QLineEdit* flowAt_;
    QLineEdit* prevalenceAt_;
    PumpPlot* chart_;
};

}  // namespace idrova
