// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/epanet_curve.h"

#include <algorithm>
#include <cmath>

#include "hydraulics/component_law.h"

namespace idrova {
namespace {

constexpr double kLeastFall = 1e-3;  ///< of the highest head, between points of a curve
constexpr double kOtherwise = 0.7;   ///< of the range, where the working point is of no use
constexpr double kBeyond = 1.25;     ///< of the middle point, for a range that ends there
constexpr double kAtEnd = 1.05;      ///< times the middle point, likewise

}  // namespace

std::array<HeadCurvePoint, 3> HeadCurve(const Settings& settings, const Component& pump,
                                        const PipeRec& pipeA, double working) {
    const auto headAt = [&](double through) {
        const double rise =
            ComponentLaw(settings, pump, pipeA, pump.throughSign * through, 0, 0).value;
        return rise / (settings.FluidDensity * kGravity);
    };
    const double highest = headAt(0);
    const double most = pump.record.MaxFlow > 0 ? pump.record.MaxFlow : 1;
    const bool falls = working > 0 && headAt(working) < highest * (1 - kLeastFall);
    const double middle = falls ? working : most * kOtherwise;
    const double end = most > middle * kAtEnd ? most : middle * kBeyond;
    const double fall = kLeastFall * std::abs(highest);
    std::array<HeadCurvePoint, 3> curve = {
        {{0, highest}, {middle, headAt(middle)}, {end, headAt(end)}}};
    for (std::size_t i = 1; i < curve.size(); ++i) {
        curve[i].head = std::min(curve[i].head, curve[i - 1].head - fall);
    }
    return curve;
}

}  // namespace idrova
