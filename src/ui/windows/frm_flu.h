// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "physdata/fluids.h"
#include "physdata/record_db.h"
#include "ui/kit/child_window.h"

class QBoxLayout;
class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace idrova {

class NameList;
struct Program;

/// The fluids: edits their database and chooses the one to compute with.
class FrmFlu : public ChildWindow {
  public:
    explicit FrmFlu(Program& program);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QBoxLayout* NameRow();
    QGridLayout* PropertyRows();
    QBoxLayout* Buttons();
    void Connect();

    FluidFields Fields() const;
    /// All but the name.
    void Show(const FluidFields& fields);
    /// Makes `slot` the chosen one (0 for none) in a list of all names. Leaves the fields alone.
    void ListNames(int slot);

    void Combo1_Click(int position);
    void Text1_Click();
    void Text6_Change();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();

    Program& program_;
    FluidFields opened_;  ///< the fluid in use when the window opened
    int selected_ = 0;    ///< slot of the fluid last chosen, 0 for none
    NameList* Combo1;
    QLabel* Label8;
    QLineEdit* Text1;
    QLineEdit* Text6;
    QLabel* Label9;
    QLineEdit* Text5;
    QLineEdit* Text3;
    QLineEdit* Text4;
    QCheckBox* Check1;
};

}  // namespace idrova
