// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "base/number_text.h"
#include "hydraulics/pipe_drop.h"
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
            largestDrop_ = std::max(largestDrop_, std::abs(Drop(pipe)));
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

    /// From start to end, by the direction of the flow.
    double Drop(const PipeRec& pipe) const {
        double flow = pipe.FlowRate;
        const double sign = Sign({pipe.EndPoint, &pipe}) * (flow < 0 ? -1 : 1);
        const double mean = kAtmosphere + (Pressure(pipe.StartPoint) + Pressure(pipe.EndPoint)) / 2;
        return sign * PipeDrop(project_.settings, pipe.Diameter, pipe.OuterSize, flow, pipe.Length,
                               std::max(mean, 1000.0));
    }

    void Hold(const char* what, int number, double misfit, double tolerance) {
        if (std::abs(misfit) <= tolerance) return;
        faults_.push_back(what + GeneralText(number) + " is off by " + GeneralText(misfit));
    }

    /// Pa; pressures are singles.
    double PressureTolerance() const { return 1.1e-4 * largestDrop_ + 2.4e-7 * largestPressure_; }

    void CheckBalance(int cell, const Ends& ends) {
        if (ends.size() == 1) return;
        double sum = 0;
        for (const End& end : ends) sum += Sign(end) * end.second->FlowRate;
        // Each end may have lost a flow that was negligible.
        Hold("cell ", cell, sum, 1e-5 * static_cast<double>(ends.size()) * largestFlow_);
    }

    void CheckPipe(int i, const PipeRec& pipe) {
        const SectionSize section =
            SectionGeometry(project_.settings, pipe.Diameter, pipe.OuterSize);
        const bool idles = ReynoldsNumber(project_.settings, section, pipe.FlowRate) < 20 &&
                           std::abs(pipe.FlowRate) <= 1e-4 * largestFlow_;
        if (idles) return;  // the friction formula has its pole there
        const double climb = project_.settings.FluidDensity * 9.81 * (pipe.Z2 - pipe.Z1);
        const double loss = Pressure(pipe.StartPoint) - Pressure(pipe.EndPoint) - climb;
        Hold("pipe ", i, loss - Drop(pipe), PressureTolerance());
    }

    void CheckComponent(int number, const End& a, const End& b) {
        const CellRec& cell = project_.Cells[number];
        const bool isPump = cell.Kind == CellKind::Pump && cell.Placed;
        const double toB = isPump ? DeliverySide(cell, *a.second, *b.second) : Sign(a);
        const double flow = toB * Sign(a) * a.second->FlowRate;
        if (flow < 0) return;  // against its direction: what it does then depends on the run
        const double area = 3.1415 / 4 * a.second->Diameter * a.second->Diameter;
        double rise = cell.PumpConstant - cell.Param2;
        double byFlow = cell.Param1 * flow * flow;
        if (cell.Kind == CellKind::Loss)
            byFlow /= -2 * project_.settings.FluidDensity * area * area;
        if (!cell.Placed) rise = byFlow = 0;
        const double misfit = toB * (Pressure(b.first) - Pressure(a.first)) - rise - byFlow;
        Hold("component ", number, misfit,
             PressureTolerance() + 1e-3 * (std::abs(rise + byFlow) + 2 * std::abs(byFlow)));
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
