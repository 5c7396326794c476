// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace idrova {

/// Prevalence in metres of head to Pa and back, by the program's own convention: one standard
/// atmosphere for 9.81 m, whatever the fluid.
double PascalFromMetres(double metres);
double MetresFromPascal(double pascal);

/// Pressure rise of a pump, Pa: a Q2 + b Q + c for a flow rate Q in kg/s.
struct PumpCurve {
    double a = 0;  ///< Pa s2/kg2
    double b = 0;  ///< Pa s/kg
    double c = 0;  ///< Pa

    double Rise(double flow) const { return (a * flow + b) * flow + c; }
    bool operator==(const PumpCurve&) const = default;
};

/// The parabola with its vertex in (`qMin`, `pMax`) that passes through (`qMax`, `pMin`), in Pa
/// and kg/s. Nothing when the flow rates are equal.
std::optional<PumpCurve> CurveThrough(double pMax, double qMin, double pMin, double qMax);

/// The labels beside "a", "b" and "c".
struct CurveLabels {
    std::string a, b, c;
    bool operator==(const CurveLabels&) const = default;
};
CurveLabels LabelsOf(const PumpCurve& curve);

/// `Text5`: the rise, in metres, at the flow rate typed in kg/h.
std::string PrevalenceText(const PumpCurve& curve, std::string_view flowText);

struct ChartRow {
    double prevalence = 0;  ///< m
    std::string label;      ///< flow rate, kg/h
};
constexpr int kChartRows = 20;
using PumpChart = std::array<ChartRow, kChartRows>;

/// Where a flow and a rise lie on the chart: rows count from 0 at `qMin`.
struct ChartPlace {
    double row = 0;
    double prevalence = 0;  ///< m
    bool operator==(const ChartPlace&) const = default;
};

/// The place of a flow in kg/s and a rise in Pa; the flow rates must differ.
ChartPlace PlaceOnChart(double qMin, double qMax, double flow, double rise);

/// The curve from `qMin` (kg/s) in twenty equal steps towards `qMax`, which itself is left out.
PumpChart ChartBetween(const PumpCurve& curve, double qMin, double qMax);

}  // namespace idrova
