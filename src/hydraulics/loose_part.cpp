// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/loose_part.h"

#include <array>
#include <numeric>

namespace idrova {
namespace {

/// Sets of points that are joined to each other.
class Parts {
  public:
    Parts() { std::iota(parent_.begin(), parent_.end(), 0); }

    int Of(int point) const {
        while (parent_[point] != point) point = parent_[point];
        return point;
    }

    void Join(int point, int other) { parent_[Of(point)] = Of(other); }

  private:
    std::array<int, kMaxPoints + 1> parent_{};
};

}  // namespace

int PipeWithoutGivenPressure(const NetworkPlan& plan, const WorkNetwork& work) {
    Parts parts;
    for (const auto [i, pipe] : DrawnPipes(work)) parts.Join(pipe.StartPoint, pipe.EndPoint);
    for (const Component& component : plan.components) parts.Join(component.high, component.low);

    std::array<bool, kMaxPoints + 1> hasPressure{};
    for (const auto [i, point] : DrawnPoints(work)) {
        if (!work.WorkPressureUnknown[i]) hasPressure[parts.Of(i)] = true;
    }
    for (const auto [i, pipe] : DrawnPipes(work)) {
        if (!hasPressure[parts.Of(pipe.StartPoint)]) return i;
    }
    return 0;
}

bool IsOverdetermined(const WorkNetwork& work, int number) {
    const PipeRec& pipe = work.WorkPipes[number];
    return !work.WorkFlowUnknown[number] && !work.WorkPressureUnknown[pipe.StartPoint] &&
           !work.WorkPressureUnknown[pipe.EndPoint];
}

}  // namespace idrova
