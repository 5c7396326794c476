// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "base/number_text.h"
#include "hydraulics/work_network.h"

namespace idrova {

/// Holds the results of a drawn network without deleted pipes against the laws, whatever way they
/// were found.
class LawCheck {
  public:
    LawCheck(const Project& project, const WorkNetwork& work) : project_(project), work_(work) {}

    /// Every junction out of balance, and every pipe and component whose pressures do not fit its
    /// flow; empty for a solution.
    std::vector<std::string> Faults() {
        for (int i = 1; i <= work_.WorkPipeCount; ++i) {
            const PipeRec& pipe = work_.WorkPipes[i];
            largestFlow_ = std::max(largestFlow_, std::abs(pipe.FlowRate));
            largestDrop_ = std::max(largestDrop_, std::abs(Drop(i)));
            for (const int point : {pipe.StartPoint, pipe.EndPoint}) {
                largestPressure_ = std::max(largestPressure_, std::abs(Pressure(point)));
                junctions_[work_.WorkPoints[point].Cell].emplace(point, &pipe);
            }
        }
        for (int i = 1; i <= work_.WorkPipeCount; ++i) CheckPipe(i, work_.WorkPipes[i]);
        for (const auto& [cell, ends] : junctions_) {
            CheckBalance(cell, ends);
            if (project_.Cells[cell].IsComponent())
                CheckComponent(cell, *ends.begin(), *ends.rbegin());
        }
        return faults_;
    }

  private:
    /// The pipes of a cell by their points there; the two points of a component are one junction.
    using Ends = std::multimap<int, const PipeRec*>;
    using End = Ends::value_type;

    double Pressure(int point) const { return work_.WorkPoints[point].Pressure; }

    /// 1 when a positive flow leaves the pipe by that end.
    static double Sign(const End& end) { return end.second->FlowFromPoint == end.first ? -1 : 1; }

    double Density(const PipeRec& pipe) const {
        const Settings& s = project_.settings;
        if (s.EquationType == Equation::Incompressible) return s.FluidDensity;
        const double mean = (Pressure(pipe.StartPoint) + Pressure(pipe.EndPoint)) / 2;
        return s.FluidDensity * (101325 + s.BasePressure + mean) / 101325 * 273.15 /
               (273.15 + s.FluidTemperature) / s.FluidCompressibility;
    }

    static double Area(const PipeRec& pipe) { return 3.1415 / 4 * pipe.Diameter * pipe.Diameter; }

    double FlowAt(const PipeRec& pipe, double reynolds) const {
        return reynolds * project_.settings.FluidViscosity * Area(pipe) / pipe.Diameter;
    }

    /// At a positive flow, by one of the formulas.
    double Formula(const PipeRec& pipe, double q, bool colebrook) const {
        const double re = q / FlowAt(pipe, 1);
        const double rough = project_.settings.Roughness / pipe.Diameter;
        double x = -3.8 * std::log10(10 / re + 0.2 * rough);
        for (int pass = 0; colebrook && pass < 60; ++pass) {
            x = 3.48 - 4 * std::log10(2 * rough + 9.35 / re * x);
        }
        const double massVelocity = q / Area(pipe);
        return 2 * pipe.Length / pipe.Diameter * massVelocity * massVelocity /
               (x * x * Density(pipe));
    }

    /// From start to end, by the direction of the flow.
    double Drop(int i) const {
        const PipeRec& pipe = work_.WorkPipes[i];
        const double q = std::abs(pipe.FlowRate);
        const double sign = Sign({pipe.EndPoint, &pipe}) * (pipe.FlowRate < 0 ? -1 : 1);
        return q == 0 ? 0 : sign * (Friction(i, pipe, q) + Loss(pipe.LossSum, pipe, q));
    }

    /// A given flow has the formulas alone.
    double Friction(int i, const PipeRec& pipe, double q) const {
        if (!work_.WorkFlowUnknown[i]) return Formula(pipe, q, q >= FlowAt(pipe, 5000));
        const double creeping = FlowAt(pipe, 50);
        if (q < creeping) return Formula(pipe, creeping, false) * q / creeping;
        const double from = FlowAt(pipe, 4950);
        const double to = FlowAt(pipe, 5050);
        if (q <= from || q >= to) return Formula(pipe, q, q >= to);
        const double start = Formula(pipe, from, false);
        const double end = Formula(pipe, to, true);
        return start + (end - start) * (q - from) / (to - from);
    }

    void Hold(const char* what, int number, double misfit, double tolerance) {
        if (std::abs(misfit) <= tolerance) return;
        faults_.push_back(what + GeneralText(number) + " is off by " + GeneralText(misfit) +
                          " where " + GeneralText(tolerance) + " is allowed");
    }

    /// Pa; pressures are singles.
    double PressureTolerance() const { return 1.2e-6 * largestDrop_ + 2.4e-7 * largestPressure_; }

    void CheckBalance(int cell, const Ends& ends) {
        if (ends.size() == 1) return;
        double sum = 0;
        for (const End& end : ends) sum += Sign(end) * end.second->FlowRate;
        Hold("cell ", cell, sum, 4e-7 * static_cast<double>(ends.size()) * largestFlow_);
    }

    void CheckPipe(int i, const PipeRec& pipe) {
        const double climb = Density(pipe) * 9.81 * (pipe.Z2 - pipe.Z1);
        const double loss = Pressure(pipe.StartPoint) - Pressure(pipe.EndPoint) - climb;
        // Colebrook's equation is closed less tightly where the flow is given.
        double loose = work_.WorkFlowUnknown[i] ? 0 : 1e-5 * std::abs(Drop(i));
        if (pipe.FlowRate == 0) loose = 1e-5 * largestPressure_;  // taken for level
        Hold("pipe ", i, loss - Drop(i), PressureTolerance() + loose);
    }

    void CheckComponent(int number, const End& a, const End& b) {
        const CellRec& cell = project_.Cells[number];
        const bool isPump = cell.Kind == CellKind::Pump && cell.Placed;
        const double toB = isPump ? DeliverySide(cell, *a.second, *b.second) : Sign(a);
        const double flow = toB * Sign(a) * a.second->FlowRate;
        double fall = isPump ? -Rise(cell, flow) : LossOf(cell, *a.second, flow);
        if (!cell.Placed) fall = 0;
        const double misfit = toB * (Pressure(a.first) - Pressure(b.first)) - fall;
        // A steep curve shows the rounding of the flow.
        const double rounding = 3e-7 * (std::abs(fall) + std::abs(cell.Param1) * flow * flow);
        const bool fixedDrop = cell.Kind == CellKind::Loss && cell.Param2 != 0;
        // The little flow at which it holds may have been taken for none.
        const double steep = fixedDrop ? (flow == 0 ? 1 : 1e-6) * std::abs(cell.Param2) : 0;
        Hold("component ", number, misfit, PressureTolerance() + rounding + steep);
    }

    static double Rise(const CellRec& pump, double flow) {
        const double peak = pump.Param1 < 0 ? -pump.Param2 / (2.0 * pump.Param1) : 0;
        const double q = std::max({flow, peak, 0.0});
        return pump.Param1 * q * q + pump.Param2 * q + pump.PumpConstant;
    }

    double Loss(double coefficient, const PipeRec& pipe, double flow) const {
        return coefficient / 2 * flow * std::abs(flow) / (Density(pipe) * Area(pipe) * Area(pipe));
    }

    double LossOf(const CellRec& loss, const PipeRec& pipe, double flow) const {
        if (loss.Param2 != 0) {
            return loss.Param2 * std::clamp(flow / (0.01 * FlowAt(pipe, 50)), -1.0, 1.0);
        }
        return Loss(loss.Param1, pipe, flow);
    }

    /// 1 when the pump delivers to the piece `b`, -1 when to the piece `a`.
    static int DeliverySide(const CellRec& cell, const PipeRec& a, const PipeRec& b) {
        const int right = b.X1 + b.X2 - a.X1 - a.X2;
        const int down = b.Y1 + b.Y2 - a.Y1 - a.Y2;
        const int along =
            cell.Direction == Delivery::Right || cell.Direction == Delivery::Left ? right : down;
        return (along > 0) == (cell.Direction < Delivery::Left) ? 1 : -1;
    }

    const Project& project_;
    const WorkNetwork& work_;
    float largestFlow_ = 0;
    double largestDrop_ = 0, largestPressure_ = 0;
    std::map<int, Ends> junctions_;
    std::vector<std::string> faults_;
};

}  // namespace idrova
