// SPDX-License-Identifier: GPL-3.0-or-later
// The plot's header is written with the toolkit's keywords.
#undef QT_NO_KEYWORDS
#include "ui/windows/pump_plot.h"

#include <qcustomplot.h>

#include <QApplication>
#include <QVBoxLayout>

#include "base/number_text.h"
#include "ui/kit/coloured_field.h"
#include "ui/kit/controls.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

constexpr double kTurned = -90;       ///< degrees; lets the labels of all rows stand side by side
constexpr QSize kSmallest(240, 220);  ///< beside the data, on a screen of 1024 x 768

constexpr QColor kWorkingPoint(0xE0, 0x40, 0x10);

/// What the chart shows, for those who cannot see it.
QString Summary(const PumpChart& chart) {
    const auto end = [](const ChartRow& row) {
        return FormatNumber(row.prevalence, "####.###") + " m at " + row.label + " kg/h";
    };
    return ToQt("From " + end(chart.front()) + " to " + end(chart.back()));
}

QString Summary(const std::vector<ChartPlace>& points) {
    QString text;
    for (const ChartPlace& point : points) {
        text += ToQt(", working at " + FormatNumber(point.prevalence, "####.###") + " m");
    }
    return text;
}

}  // namespace

PumpPlot::PumpPlot(const char* name)
    : plot_(new QCustomPlot), curve_(plot_->addGraph()), points_(plot_->addGraph()) {
    Named(this, name);
    setAccessibleName("Pump curve");
    setMinimumSize(kSmallest);
    auto* area = new QVBoxLayout(this);
    area->setContentsMargins(0, 0, 0, 0);
    area->addWidget(plot_);
    curve_->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssDisc, 6));
    points_->setLineStyle(QCPGraph::lsNone);
    points_->setScatterStyle({QCPScatterStyle::ssCircle, QPen(kWorkingPoint, 3), Qt::NoBrush, 12});
    plot_->xAxis->setLabel("Portata [kg/h]");
    plot_->yAxis->setLabel("Prevalenza [m]");
    plot_->xAxis->grid()->setZeroLinePen(Qt::NoPen);
    plot_->xAxis->setTickLabelRotation(kTurned);
    plot_->xAxis->setTicker(QSharedPointer<QCPAxisTickerText>::create());
    Colour();
}

bool PumpPlot::event(QEvent* event) {
    if (event->type() == QEvent::ApplicationPaletteChange) Colour();
    return QWidget::event(event);
}

void PumpPlot::Colour() {
    const QPalette theme = QApplication::palette(this);
    const QColor text = theme.color(QPalette::Text);
    const QColor ground = theme.color(QPalette::Base);
    const QColor faint = OldResultColour(OldResultColour(text, ground), ground);
    const bool dark = ground.lightness() < text.lightness();
    plot_->setBackground(ground);
    curve_->setPen(QPen(dark ? QColor(0x6FA8FF) : QColor(Qt::blue), 2));
    for (QCPAxis* axis : {plot_->xAxis, plot_->yAxis}) {
        for (const auto set :
             {&QCPAxis::setBasePen, &QCPAxis::setTickPen, &QCPAxis::setSubTickPen}) {
            (axis->*set)(text);
        }
        axis->setTickLabelColor(text);
        axis->setLabelColor(text);
        axis->grid()->setPen(QPen(faint, 0, Qt::DotLine));
    }
    plot_->replot();
}

void PumpPlot::ShowChart(const PumpChart& chart) {
    auto labels = QSharedPointer<QCPAxisTickerText>::create();
    curve_->data()->clear();
    for (int row = 0; row < kChartRows; ++row) {
        labels->addTick(row, ToQt(chart[row].label));
        curve_->addData(row, chart[row].prevalence);
    }
    plot_->xAxis->setTicker(labels);
    curveSummary_ = Summary(chart);
    working_.clear();
    points_->data()->clear();
    Replot();
}

void PumpPlot::ShowWorkingPoints(const std::vector<ChartPlace>& points) {
    if (points == working_) return;
    working_ = points;
    points_->data()->clear();
    for (const ChartPlace& point : points) points_->addData(point.row, point.prevalence);
    Replot();
}

void PumpPlot::Replot() {
    setAccessibleDescription(curveSummary_ + Summary(working_));
    setToolTip(working_.empty() ? QString() : "Circles: where the placed pumps of this name work");
    plot_->rescaleAxes();
    for (QCPAxis* axis : {plot_->xAxis, plot_->yAxis}) {
        axis->scaleRange(1.1, axis->range().center());
    }
    plot_->replot();
}

}  // namespace idrova
