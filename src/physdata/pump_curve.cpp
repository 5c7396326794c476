// SPDX-License-Identifier: GPL-3.0-or-later
#include "physdata/pump_curve.h"

#include "base/number_text.h"
#include "model/settings.h"

namespace idrova {

double PascalFromMetres(double metres) {
    return metres * kPascalPerBar / kGravity;
}

double MetresFromPascal(double pascal) {
    return pascal * kGravity / kPascalPerBar;
}

std::optional<PumpCurve> CurveThrough(double pMax, double qMin, double pMin, double qMax) {
    if (qMax * qMax - 2 * qMin * qMax + qMin * qMin == 0) return std::nullopt;
    const double range = (qMax - qMin) * (qMax - qMin);
    return PumpCurve{
        .a = (pMin - pMax) / range,
        .b = 2 * qMin * (pMax - pMin) / range,
        .c = (pMax * qMax * qMax - 2 * pMax * qMin * qMax + pMin * qMin * qMin) / range};
}

CurveLabels LabelsOf(const PumpCurve& curve) {
    return {GeneralText(curve.a), GeneralText(curve.b), GeneralText(curve.c)};
}

std::string PrevalenceText(const PumpCurve& curve, std::string_view flowText) {
    const double rise = curve.Rise(ReadNumber(flowText) / kSecondsPerHour);
    return FormatNumber(ToSingle(MetresFromPascal(rise)), "###.##");
}

PumpChart ChartBetween(const PumpCurve& curve, double qMin, double qMax) {
    const double step = (qMax - qMin) / kChartRows;
    PumpChart chart;
    int steps = 0;
    for (ChartRow& row : chart) {
        const double flow = qMin + steps++ * step;
        row.prevalence = MetresFromPascal(curve.Rise(flow));
        row.label = FormatNumber(flow * kSecondsPerHour, "#####.##");
    }
    return chart;
}

ChartPlace PlaceOnChart(double qMin, double qMax, double flow, double rise) {
    return {(flow - qMin) / (qMax - qMin) * kChartRows, MetresFromPascal(rise)};
}

}  // namespace idrova
