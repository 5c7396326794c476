// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <functional>
#include <optional>

#include "physdata/fittings.h"

class QDialogButtonBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace idrova {

/// Counts fittings from the database of concentrated losses and shows the sum of their
/// coefficients together with what there was before.
class FittingPicker : public QDialog {
  public:
    FittingPicker(std::vector<FittingCount> fittings, double before, QWidget* parent);

    double Sum() const { return before_ + SumOf(fittings_); }

  private:
    QWidget* Counts();
    void ShowSum();

    std::vector<FittingCount> fittings_;
    double before_;
    QLabel* list_;
    QLabel* sum_;
};

/// The sum that the user has picked; nothing when the window was cancelled.
std::optional<double> PickFittings(const LossDb& losses, double before, QWidget* parent);

/// The field with a button behind it that picks its fittings.
QWidget* FittingRow(QLineEdit* field, const std::function<void()>& pick);

}  // namespace idrova
