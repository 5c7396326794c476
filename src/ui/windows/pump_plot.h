// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include "physdata/pump_curve.h"

class QCustomPlot;

namespace idrova {

/// The chart of a pump's curve: prevalence in m over the flow rate in kg/h.
class PumpPlot : public QWidget {
  public:
    explicit PumpPlot(const char* name);

    void ShowChart(const PumpChart& chart);

    QSize sizeHint() const override { return {420, 300}; }

  protected:
    bool event(QEvent* event) override;

  private:
    /// In the colours of the desktop's theme.
    void Colour();

    QCustomPlot* plot_;
};

}  // namespace idrova
