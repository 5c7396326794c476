// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/network_system.h"

#include <algorithm>
#include <cmath>

#include "hydraulics/component_law.h"
#include "hydraulics/pipe_drop.h"

namespace idrova {
namespace {

/// The two ends of a pipe as the equations see them.
struct PipeEnds {
    const PointRec& start;
    const PointRec& end;
    int startUnknown;  ///< 0 when the pressure is given
    int endUnknown;
};

class Assembly {
  public:
    Assembly(const Settings& settings, const NetworkPlan& plan, const WorkNetwork& work,
             const PassState& state, LinearSystem& system)
        : settings_(settings), plan_(plan), work_(work), state_(state), system_(system) {}

    void Run() {
        system_.Clear();
        for (const auto [i, pipe] : DrawnPipes(work_)) {
            if (!work_.WorkFlowUnknown[i]) KnownFlowLaw(i, pipe);
        }
        for (const auto [i, pipe] : DrawnPipes(work_)) {
            if (work_.WorkFlowUnknown[i]) UnknownFlowLaw(i, pipe);
        }
        for (const auto [i, pipe] : DrawnPipes(work_)) {
            if (!work_.WorkFlowUnknown[i]) KnownFlow(i);
        }
        KnownPressures();
        Continuity();
        for (const Component& component : plan_.components) {
            ComponentPressure(component);
            ComponentContinuity(component);
        }
    }

  private:
    void Add(int unknown, double coefficient) { system_.Add(row_, unknown, coefficient); }
    void AddRight(double term) { system_.AddRight(row_, term); }

    PipeEnds EndsOf(const PipeRec& pipe) const {
        const int s = pipe.StartPoint;
        const int t = pipe.EndPoint;
        return {work_.WorkPoints[s], work_.WorkPoints[t],
                work_.WorkPressureUnknown[s] ? plan_.pressureUnknown[s] : 0,
                work_.WorkPressureUnknown[t] ? plan_.pressureUnknown[t] : 0};
    }

    double Hydrostatic(const PipeRec& pipe) const {
        return settings_.FluidDensity * kGravity * (pipe.Z2 - pipe.Z1);
    }

    /// What the pass starts from: the guess, rounded as the record will hold it, or the given flow.
    float WorkingFlow(int i) const {
        return work_.WorkFlowUnknown[i] ? static_cast<float>(state_.guess[i])
                                        : std::abs(work_.WorkPipes[i].FlowRate);
    }

    /// pS - pT on the left, with what is given of it moved to the right.
    void PressureDifference(const PipeEnds& ends) {
        if (ends.startUnknown != 0) {
            Add(ends.startUnknown, 1);
        } else {
            AddRight(-ends.start.Pressure);
        }
        if (ends.endUnknown != 0) {
            Add(ends.endUnknown, -1);
        } else {
            AddRight(ends.end.Pressure);
        }
    }

    /// pS - pT = s drop + rho g (zT - zS). With both pressures given the row stays without
    /// coefficients, which makes the system singular: one of the three is too many.
    void KnownFlowLaw(int i, const PipeRec& pipe) {
        ++row_;
        const PipeEnds ends = EndsOf(pipe);
        AddRight(Hydrostatic(pipe));
        if (ends.startUnknown == 0 && ends.endUnknown == 0) return;
        const double drop = DropWithLosses(settings_, pipe, pipe.FlowRate, state_.meanPressure[i]);
        PressureDifference(ends);
        AddRight(pipe.DirectionSign() * drop);
    }

    /// pS - pT - s R q = rho g (zT - zS); multiplied by s when both pressures are given.
    void UnknownFlowLaw(int i, const PipeRec& pipe) {
        ++row_;
        const PipeEnds ends = EndsOf(pipe);
        const int s = pipe.DirectionSign();
        const double resistance = state_.resistance[i];
        if (ends.startUnknown == 0 && ends.endUnknown == 0) {
            const double difference = static_cast<double>(ends.start.Pressure) - ends.end.Pressure;
            Add(plan_.flowUnknown[i], resistance);
            AddRight(s * difference);
            AddRight(-s * Hydrostatic(pipe));
            return;
        }
        PressureDifference(ends);
        Add(plan_.flowUnknown[i], -s * resistance);
        AddRight(Hydrostatic(pipe));
    }

    void KnownFlow(int i) {
        ++row_;
        Add(plan_.flowUnknown[i], 1);
        AddRight(WorkingFlow(i));
    }

    void KnownPressures() {
        for (const auto [i, point] : DrawnPoints(work_)) {
            if (work_.WorkPressureUnknown[i]) continue;
            ++row_;
            Add(plan_.pressureUnknown[i], 1);
            AddRight(point.Pressure);
        }
    }

    /// The sum of the flows that reach a junction is 0.
    void Continuity() {
        for (const JunctionTerm& term : plan_.junctionTerms) {
            system_.Add(row_ + term.junction, plan_.flowUnknown[term.pipe], term.sign);
        }
        row_ += plan_.junctions;
    }

    void ComponentPressure(const Component& component) {
        ++row_;
        if (component.high == 0) return;
        const PipeRec& pipeA = work_.WorkPipes[component.pipeA];
        Add(plan_.pressureUnknown[component.high], 1);
        Add(plan_.pressureUnknown[component.low], -1);
        AddRight(LaggedJump(settings_, component, pipeA, WorkingFlow(component.pipeA)));
    }

    void ComponentContinuity(const Component& component) {
        ++row_;
        if (component.pipeB == 0) return;
        Add(plan_.flowUnknown[component.pipeA], component.signA);
        Add(plan_.flowUnknown[component.pipeB], component.signB);
    }

    const Settings& settings_;
    const NetworkPlan& plan_;
    const WorkNetwork& work_;
    const PassState& state_;
    LinearSystem& system_;
    int row_ = 0;
};

}  // namespace

void AssembleNetworkSystem(const Settings& settings, const NetworkPlan& plan,
                           const WorkNetwork& work, const PassState& state, LinearSystem& system) {
    Assembly(settings, plan, work, state, system).Run();
}

}  // namespace idrova
