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

    /// Of the fittings counted here.
    double Picked() const { return SumOf(fittings_); }

  private:
    QWidget* Counts();
    void ShowSum();

    std::vector<FittingCount> fittings_;
    double before_;
    QLabel* list_;
    QLabel* sum_;
};

/// The sum of the fittings that the user has counted, to be added to `before`; nothing when the
/// window was cancelled.
std::optional<double> PickFittings(const LossDb& losses, double before, QWidget* parent);

/// The field with a button behind it that picks its fittings.
QWidget* FittingRow(QLineEdit* field, const std::function<void()>& pick);

}  // namespace idrova
