// SPDX-License-Identifier: GPL-3.0-or-later
// The plot's header is written with the toolkit's keywords.
#undef QT_NO_KEYWORDS
#include "ui/windows/pump_plot.h"

#include <qcustomplot.h>

#include <QVBoxLayout>

#include "base/number_text.h"
#include "ui/kit/controls.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

constexpr double kTurned = -60;  ///< degrees; lets the labels of all rows stand side by side
constexpr QSize kSmallest(420, 300);

/// What the chart shows, for those who cannot see it.
QString Summary(const PumpChart& chart) {
    const auto end = [](const ChartRow& row) {
        return FormatNumber(row.prevalence, "####.###") + " m at " + row.label + " kg/h";
    };
    return ToQt("From " + end(chart.front()) + " to " + end(chart.back()));
}

}  // namespace

PumpPlot::PumpPlot(const char* name) : plot_(new QCustomPlot) {
    Named(this, name);
    setAccessibleName("Pump curve");
    setMinimumSize(kSmallest);
    auto* area = new QVBoxLayout(this);
    area->setContentsMargins(0, 0, 0, 0);
    area->addWidget(plot_);
    plot_->addGraph();
    plot_->graph()->setPen(QPen(Qt::blue, 2));
    plot_->graph()->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssDisc, 6));
    plot_->xAxis->setLabel("Portata [kg/h]");
    plot_->yAxis->setLabel("Prevalenza [m]");
    plot_->xAxis->grid()->setZeroLinePen(Qt::NoPen);
    plot_->xAxis->setTickLabelRotation(kTurned);
    plot_->xAxis->setTicker(QSharedPointer<QCPAxisTickerText>::create());
}

void PumpPlot::ShowChart(const PumpChart& chart) {
    auto labels = QSharedPointer<QCPAxisTickerText>::create();
    plot_->graph()->data()->clear();
    for (int row = 0; row < kChartRows; ++row) {
        labels->addTick(row, ToQt(chart[row].label));
        plot_->graph()->addData(row, chart[row].prevalence);
    }
    plot_->xAxis->setTicker(labels);
    plot_->rescaleAxes();
    for (QCPAxis* axis : {plot_->xAxis, plot_->yAxis}) {
        axis->scaleRange(1.1, axis->range().center());
    }
    plot_->replot();
    setAccessibleDescription(Summary(chart));
}

}  // namespace idrova
