// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <vector>

#include "hydraulics/component_law.h"
#include "hydraulics/fluid_density.h"
#include "hydraulics/friction_law.h"
#include "support/network_run.h"

namespace idrova {
namespace {

struct EndPressures {
    double start = 0, end = 0;  ///< Pa
};

/// Over flows of both signs, between two pressures.
struct SweptLaw {
    const char* name = "";
    int rises = 1;          ///< -1: its value falls as the flow rises
    bool odd = true;        ///< about its value at rest
    double leastSlope = 0;  ///< anywhere but at rest
    int bends = 0;          ///< where the slope jumps, at most
    std::function<PressureLaw(double flow, EndPressures)> at;
};

constexpr double kAnySlope = 1e-300;

SweptLaw PipeRow(const Settings& settings, const char* name, const PipeRec& pipe) {
    return {name, pipe.DirectionSign(), true, kAnySlope, 6, [&settings, pipe](double flow, auto p) {
                return PipeLaw(settings, pipe, flow, p.start, p.end);
            }};
}

SweptLaw ComponentRow(const Settings& settings, const char* name, CellKind kind,
                      std::array<float, 3> numbers, int throughSign) {
    Component component;
    component.throughSign = throughSign;
    component.record.Kind = kind;
    component.record.Placed = true;
    component.record.Param1 = numbers[0];
    component.record.Param2 = numbers[1];
    component.record.PumpConstant = numbers[2];
    const bool pump = kind == CellKind::Pump;
    const bool fixed = !pump && numbers[1] != 0;
    const int rises = pump ? -throughSign : throughSign;
    return {name,
            rises,
            !pump,
            pump || fixed ? 0 : kAnySlope,
            fixed ? 2 : 0,
            [&settings, component](double flow, auto p) {
                return ComponentLaw(settings, component, {.Diameter = 0.1F}, flow, p.start, p.end);
            }};
}

std::vector<SweptLaw> LawsOf(const Settings& settings) {
    const PipeRec level{
        .Length = 100, .Diameter = 0.1F, .StartPoint = 1, .EndPoint = 2, .FlowFromPoint = 1};
    PipeRec fitted = level;
    fitted.FlowFromPoint = 2;
    fitted.Z2 = 12;
    fitted.LossSum = 3;
    const auto loss = [&](const char* name, std::array<float, 3> numbers, int throughSign) {
        return ComponentRow(settings, name, CellKind::Loss, numbers, throughSign);
    };
    const auto pump = [&](const char* name, std::array<float, 3> numbers, int throughSign) {
        return ComponentRow(settings, name, CellKind::Pump, numbers, throughSign);
    };
    return {PipeRow(settings, "level pipe", level),
            PipeRow(settings, "pipe with fittings, upwards, counted from its end", fitted),
            loss("coefficient", {3}, 1),
            loss("coefficient, counted from its end", {3}, -1),
            loss("fixed drop", {0, 2e4F}, -1),
            pump("pump without its constant", {-20, 1e5F}, 1),
            pump("pump that only falls", {-20, -50, 1e5F}, 1),
            pump("pump that is highest at 5 kg/s", {-20, 200, 1e5F}, -1)};
}

/// What a law differs by from what its slopes say, between two flows; of its value,
/// that at rest included.
double Misfit(const SweptLaw& law, EndPressures ends, double from, double to) {
    const PressureLaw a = law.at(from, ends);
    const PressureLaw b = law.at(to, ends);
    const double bySlopes = (a.byFlow + b.byFlow) / 2 * (to - from);
    const double size = std::abs(a.value) + std::abs(law.at(0, ends).value);
    return std::abs(b.value - a.value - bySlopes) / std::max(size, std::abs(b.value));
}

/// What remains of the misfit in ever smaller pieces about its worst place: the height of a jump.
double Jump(const SweptLaw& law, EndPressures ends, double from, double to) {
    for (int halving = 0; halving < 30; ++halving) {
        const double middle = (from + to) / 2;
        const bool below = Misfit(law, ends, from, middle) > Misfit(law, ends, middle, to);
        (below ? to : from) = middle;
    }
    return Misfit(law, ends, from, to);
}

/// Holds the slopes by the pressures against differences of the law.
void ExpectSlopesByPressure(const SweptLaw& law, EndPressures p, double flow) {
    constexpr double h = 10;  // Pa
    const PressureLaw at = law.at(flow, p);
    const auto difference = [&](double start, double end) {
        return (law.at(flow, {p.start + start, p.end + end}).value -
                law.at(flow, {p.start - start, p.end - end}).value) /
               (2 * h);
    };
    const double tolerance = 1e-11 * std::abs(at.value);
    ASSERT_NEAR(at.byStart, difference(h, 0), tolerance) << law.name << " at " << flow;
    ASSERT_NEAR(at.byEnd, difference(0, h), tolerance) << law.name << " at " << flow;
}

void Sweep(const SweptLaw& law, EndPressures ends, const std::vector<double>& flows) {
    int bends = 0;
    const double atRest = law.at(0, ends).value;
    for (std::size_t i = 1; i < flows.size(); ++i) {
        const PressureLaw at = law.at(flows[i], ends);
        const double before = law.at(flows[i - 1], ends).value;
        const double slope = law.rises * at.byFlow;
        ASSERT_GE(law.rises * (at.value - before), 0) << flows[i];
        ASSERT_GE(slope, flows[i] == 0 ? 0 : law.leastSlope) << flows[i];
        if (Misfit(law, ends, flows[i - 1], flows[i]) > 3e-7) {
            ++bends;
            ASSERT_LT(Jump(law, ends, flows[i - 1], flows[i]), 1e-9) << flows[i];
        }
        if (i % 50 == 0) ExpectSlopesByPressure(law, ends, flows[i]);
        if (!law.odd) continue;
        const PressureLaw back = law.at(-flows[i], ends);
        ASSERT_NEAR(back.value - atRest, atRest - at.value,
                    1e-14 * (std::abs(at.value) + std::abs(atRest)));
        ASSERT_EQ(back.byFlow, at.byFlow) << flows[i];
    }
    EXPECT_LE(bends, law.bends);
}

/// Re 0.01 to 10^8 in 0.1 m, of both signs.
std::vector<double> SweptFlows(const Settings& settings) {
    std::vector<double> flows;
    const double unit = FlowAtReynolds(settings, SectionGeometry(settings, 0.1, 0), 1);
    for (int i = 5000; i >= 0; --i) flows.push_back(-unit * std::pow(10, i / 500.0 - 2));
    flows.push_back(0);
    for (int i = 0; i <= 5000; ++i) flows.push_back(unit * std::pow(10, i / 500.0 - 2));
    return flows;
}

TEST(Laws, AreContinuousAndRiseOverTenDecadesByTheSlopesTheySay) {
    // The last two have their mean pressure at its bound.
    constexpr EndPressures kEnds[] = {{3e5, 1e5}, {1e5, -5e5}, {-5e5, 1e5}};
    for (const bool gas : {false, true}) {
        for (const double roughness : {0.0, 0.005}) {
            NetworkBuilder fluid;
            if (gas) MakeAir(*fluid);
            const Settings& settings = fluid->settings;
            fluid->settings.Roughness = roughness;
            for (const SweptLaw& law : LawsOf(settings)) {
                for (const EndPressures ends : kEnds) {
                    SCOPED_TRACE(testing::Message() << law.name << (gas ? ", air" : ", water"));
                    Sweep(law, ends, SweptFlows(settings));
                }
            }
        }
    }
}

/// The formulas as they stand: without slope, and the law's where that follows them.
TEST(Laws, OfAGivenFlowFollowTheFormulas) {
    for (const bool gas : {false, true}) {
        NetworkBuilder fluid;
        if (gas) MakeAir(*fluid);
        const Settings& settings = fluid->settings;
        const SectionSize section = SectionGeometry(settings, 0.1, 0);
        PipeRec pipe{.Length = 100, .Diameter = 0.1F, .StartPoint = 1, .FlowFromPoint = 1};
        pipe.Z1 = 12;
        pipe.LossSum = 3;
        for (const double re : {50.01, 4900.0, 5060.0, 1e8}) {
            const double flow = FlowAtReynolds(settings, section, re);
            const PressureLaw law = PipeLaw(settings, pipe, flow, 3e5, 1e5);
            for (const int sign : {1, -1}) {
                pipe.FlowRate = static_cast<float>(sign * flow);
                const PressureLaw given = GivenFlowLaw(settings, pipe, 3e5, 1e5);
                EXPECT_NEAR(given.value, law.value, 2e-5 * std::abs(law.value));
                EXPECT_NEAR(given.byStart, law.byStart, 2e-5 * std::abs(law.byStart));
                EXPECT_NEAR(given.byEnd, law.byEnd, 2e-5 * std::abs(law.byEnd));
                EXPECT_EQ(given.byFlow, 0);
            }
        }
    }
}

TEST(MeanPressure, IsBoundedBelow) {
    NetworkBuilder air;
    air->settings.BasePressure = 1000;
    const struct {
        double start, end, mean;
    } cases[] = {{1e5, 2e5, 252325},
                 {1e5, -5e5, 101162.5},  // half of the higher end's
                 {-5e5, 1e5, 101162.5},
                 {-5e5, -6e5, 1000}};
    for (const auto& c : cases) {
        EXPECT_NEAR(MeanPressureAt(air->settings, c.start, c.end).value, c.mean, 1e-9);
    }
}

}  // namespace
}  // namespace idrova
