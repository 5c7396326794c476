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

  private:
    QBoxLayout* Data();
    QGridLayout* Rows();
    QBoxLayout* Buttons();

    PumpFields Fields() const;
    void ShowCurve(const PumpRecord& pump);

    void Combo1_Click(int position);
    void Text6_Change();
    void Command2_Click();
    void Command3_Click();

    Program& program_;
    PumpCurve curve_;  ///< of the pump last shown that has one
    NameList* Combo1;
    QLineEdit* Text1;
    QLineEdit* Text2;
    QLineEdit* Text3;
    QLineEdit* Text4;
    QLabel* Label6;
    QLabel* Label8;
    QLabel* Label11;
    QLineEdit* Text6;
    QLineEdit* Text5;
    PumpPlot* MSChart1;
};

}  // namespace idrova
