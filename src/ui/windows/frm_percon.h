// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "physdata/losses.h"
#include "ui/kit/child_window.h"

class QBoxLayout;
class QGridLayout;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace idrova {

class NameList;
struct Program;

/// The concentrated losses: edits their database.
class FrmPerCon : public ChildWindow {
  public:
    explicit FrmPerCon(Program& program);

  private:
    QGridLayout* Rows();
    QBoxLayout* Buttons();
    void Connect();

    LossFields Fields() const;
    void Show(const LossFields& fields);
    /// As a window that has just been opened.
    void Load();

    void Combo1_Click(int position);
    void Option1_Click(LossOption option);
    void Text2_Change();
    void Command2_Click();
    void Command3_Click();

    Program& program_;
    NameList* Combo1;
    std::array<QRadioButton*, 2> Option1;
    QLineEdit* Text1;
    QLineEdit* Text2;
    QLabel* Label2;
};

}  // namespace idrova
