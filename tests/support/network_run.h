// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "base/number_text.h"
#include "hydraulics/compute_network.h"
#include "hydraulics/pipe_drop.h"
#include "support/networks.h"
#include "support/scripted_boxes.h"

namespace idrova {

/// One run of a drawn network, and what came of it.
struct NetworkRun {
    explicit NetworkRun(NetworkBuilder& network, std::uint32_t seed = 1) {
        CopyNetwork(*network, *work);
        outcome =
            ComputeNetwork(*network, *work, false,
                           {.boxes = boxes, .writeReport = [this] { ++reports; }, .seed = seed});
    }

    double Flow(int pipe) const { return work->WorkPipes[pipe].FlowRate; }
    double Pressure(int point) const { return work->WorkPoints[point].Pressure; }

    std::unique_ptr<WorkNetwork> work = std::make_unique<WorkNetwork>();
    RecordedBoxes boxes;
    int reports = 0;
    Outcome outcome;
};

/// Holds results against the laws, whatever way they were found. Working pressures include the
/// base pressure.
class LawCheck {
  public:
    LawCheck(const Project& project, const WorkNetwork& work) : project_(project), work_(work) {
        for (int i = 1; i <= work.WorkPipeCount; ++i) {
            if (!work.WorkPipes[i].IsDrawn()) continue;
            largestFlow_ = std::max(largestFlow_, std::abs(work.WorkPipes[i].FlowRate));
            largestDrop_ = std::max(largestDrop_, std::abs(Drop(work.WorkPipes[i])));
        }
    }

    /// Every junction out of balance and every pipe whose pressures do not fit its flow; empty for
    /// a solution.
    std::vector<std::string> Faults() {
        for (int i = 1; i <= work_.WorkPointCount; ++i) CheckBalance(i);
        for (int i = 1; i <= work_.WorkPipeCount; ++i) {
            if (work_.WorkPipes[i].IsDrawn() && !Idles(work_.WorkPipes[i])) CheckPipe(i);
        }
        return faults_;
    }

  private:
    /// From start to end, by the direction of the flow.
    double Drop(const PipeRec& pipe) const {
        double flow = pipe.FlowRate;
        const double mean =
            kAtmosphere + (work_.WorkPoints[pipe.StartPoint].Pressure +
                           static_cast<double>(work_.WorkPoints[pipe.EndPoint].Pressure)) /
                              2;
        const double drop = PipeDrop(project_, pipe.Diameter, pipe.OuterSize, flow, pipe.Length,
                                     std::max(mean, 1000.0));
        return pipe.FlowRate < 0 ? -drop * pipe.DirectionSign() : drop * pipe.DirectionSign();
    }

    /// The two points of a component share its cell and are one junction.
    bool AreOneJunction(int point, int other) const {
        return point == other || (project_.Mode == WorkMode::Graphic &&
                                  work_.WorkPoints[point].Cell == work_.WorkPoints[other].Cell);
    }

    void CheckBalance(int point) {
        double sum = 0;
        int ends = 0;
        for (int i = 1; i <= work_.WorkPipeCount; ++i) {
            const PipeRec& pipe = work_.WorkPipes[i];
            if (!pipe.IsDrawn()) continue;
            for (const int end : {pipe.StartPoint, pipe.EndPoint}) {
                if (!AreOneJunction(point, end)) continue;
                ++ends;
                sum += end == pipe.FlowFromPoint ? -pipe.FlowRate : pipe.FlowRate;
            }
        }
        // Each end may have lost a flow that was negligible.
        if (ends > 1 && !(std::abs(sum) <= 1e-5 * ends * largestFlow_)) {
            faults_.push_back("point " + GeneralText(point) + " is off by " + GeneralText(sum) +
                              " kg/s");
        }
    }

    /// Where the friction formula has its pole, or a flow was set to 0 as negligible.
    bool Idles(const PipeRec& pipe) const {
        const SectionSize section = SectionGeometry(project_, pipe.Diameter, pipe.OuterSize);
        return ReynoldsNumber(project_, section, pipe.FlowRate) < 20 &&
               std::abs(pipe.FlowRate) <= 1e-4 * largestFlow_;
    }

    void CheckPipe(int i) {
        const PipeRec& pipe = work_.WorkPipes[i];
        const double start = work_.WorkPoints[pipe.StartPoint].Pressure;
        const double end = work_.WorkPoints[pipe.EndPoint].Pressure;
        const double climb = project_.FluidDensity * 9.81 * (pipe.Z2 - pipe.Z1);
        const double misfit = start - end - climb - Drop(pipe);
        const double singles = 1.2e-7 * (std::abs(start) + std::abs(end));
        if (!(std::abs(misfit) <= 1.1e-4 * largestDrop_ + singles)) {
            faults_.push_back("pipe " + GeneralText(i) + " is off by " + GeneralText(misfit) +
                              " Pa of " + GeneralText(Drop(pipe)));
        }
    }

    const Project& project_;
    const WorkNetwork& work_;
    float largestFlow_ = 0;
    double largestDrop_ = 0;
    std::vector<std::string> faults_;
};

inline std::vector<std::string> BrokenLaws(const Project& project, const WorkNetwork& work) {
    return LawCheck(project, work).Faults();
}

}  // namespace idrova
