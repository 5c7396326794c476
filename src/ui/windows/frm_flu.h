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

    void Choose(int position);
    void DensityClicked();
    void ViscosityChanged();
    void Use();
    void Save();
    void Delete();
    void SaveAs();

    Program& program_;
    FluidFields opened_;  ///< the fluid in use when the window opened
    int selected_ = 0;    ///< slot of the fluid last chosen, 0 for none
    NameList* names_;
    QLabel* number_;
    QLineEdit* density_;
    QLineEdit* viscosity_;
    QLabel* kinematicViscosity_;
    QLineEdit* compressibility_;
    QLineEdit* specificHeat_;
    QLineEdit* conductivity_;
    QCheckBox* predefined_;
};

}  // namespace idrova
