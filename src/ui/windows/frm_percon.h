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

    void Choose(int position);
    void ChooseOption(LossOption option);
    void ShowMilliBar();
    void Save();
    void Delete();

    Program& program_;
    NameList* names_;
    std::array<QRadioButton*, 2> options_;
    QLineEdit* coefficient_;
    QLineEdit* fixedDrop_;
    QLabel* milliBar_;
};

}  // namespace idrova
