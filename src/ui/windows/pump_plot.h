// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

#include "physdata/pump_curve.h"

class QCPGraph;
class QCustomPlot;

namespace idrova {

/// The chart of a pump's curve: prevalence in m over the flow rate in kg/h.
class PumpPlot : public QWidget {
  public:
    explicit PumpPlot(const char* name);

    void ShowChart(const PumpChart& chart);
    /// Where placed pumps work, beside the curve of the chart.
    void ShowWorkingPoints(const std::vector<ChartPlace>& points);

    QSize sizeHint() const override { return {420, 300}; }

  protected:
    bool event(QEvent* event) override;

  private:
    /// In the colours of the desktop's theme.
    void Colour();
    void Replot();

    QCustomPlot* plot_;
    QCPGraph* curve_;
    QCPGraph* points_;
    QString curveSummary_;
    std::vector<ChartPlace> working_;
};

}  // namespace idrova
