// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>

#include "hydraulics/component_law.h"
#include "hydraulics/fluid_density.h"
#include "hydraulics/friction_law.h"
#include "support/network_run.h"

namespace idrova {
namespace {

/// Of water in 100 m of 0.1 m.
LawAt FrictionAt(double roughness, double reynolds) {
    NetworkBuilder water;
    water->settings.Roughness = roughness * 0.1;
    const SectionSize section = SectionGeometry(water->settings, 0.1, 0);
    return FrictionLaw(water->settings, section, 100,
                       FlowAtReynolds(water->settings, section, reynolds));
}

TEST(FrictionLaw, IsOddContinuousAndRisingOverTenDecades) {
    const double step = std::pow(10, 0.005);
    for (const double e : {0.0, 1e-6, 1e-4, 1e-3, 1e-2, 0.05}) {
        for (double reynolds = 0.01; reynolds < 1e8; reynolds *= step) {
            SCOPED_TRACE(testing::Message() << "Re " << reynolds << ", roughness " << e);
            const LawAt law = FrictionAt(e, reynolds);
            const LawAt back = FrictionAt(e, -reynolds);
            EXPECT_EQ(back.value, -law.value);
            EXPECT_EQ(back.slope, law.slope);
            const LawAt next = FrictionAt(e, reynolds * step);
            EXPECT_GT(next.value, law.value);
            EXPECT_LT(next.value, law.value * std::pow(step, 3));
            const double h = 1e-5;
            const double difference =
                FrictionAt(e, reynolds * (1 + h)).value - FrictionAt(e, reynolds * (1 - h)).value;
            const double flow = reynolds * 1e-3 * 3.1415 * 0.1 / 4;
            EXPECT_NEAR(law.slope * 2 * h * flow, difference, 1e-6 * difference);
        }
        for (const double join : {50.0, 4950.0, 5050.0}) {
            const double below = FrictionAt(e, join * (1 - 1e-9)).value;
            EXPECT_NEAR(FrictionAt(e, join * (1 + 1e-9)).value, below, 1e-8 * below);
        }
        EXPECT_EQ(FrictionAt(e, 0).value, 0);
        EXPECT_GT(FrictionAt(e, 0).slope, 0);
    }
}

/// A hundredth of the flow at Re 50 of water in 0.1 m makes a fixed drop whole.
constexpr double kFullDropFlow = 0.01 * 50 * 1e-3 * 3.1415 * 0.1 / 4;
/// 3 times half the density times the square of the velocity of 10 kg/s.
constexpr double kLossAt10 = 1.5 / 1000 * 100 / (0.00785375 * 0.00785375);
constexpr CellKind kPump = CellKind::Pump;
constexpr CellKind kLoss = CellKind::Loss;

constexpr struct {
    CellKind kind;
    float param1, param2, constant;
    double through, value, slope;
} kComponents[] = {
    {kLoss, 3, 0, 0, 10, kLossAt10, kLossAt10 / 5},
    {kLoss, 3, 0, 0, -10, -kLossAt10, kLossAt10 / 5},
    {kLoss, 3, 0, 0, 0, 0, 0},
    {kLoss, 3, 2e4F, 0, 1, 2e4, 0},
    {kLoss, 0, 2e4F, 0, -1, -2e4, 0},
    {kLoss, 0, 2e4F, 0, kFullDropFlow / -4, -5e3, 2e4 / kFullDropFlow},
    {kPump, -20, 1e5F, 0, 10, 98000, -400},
    {kPump, -20, -50, 1e5F, 10, 97500, -450},
    {kPump, -20, 200, 1e5F, 6, 100480, -40},
    {kPump, -20, 200, 1e5F, 4, 100500, 0},  // below the flow of its highest rise
    {kPump, -20, 200, 1e5F, -3, 100500, 0},
    {kPump, 0, -50, 1e5F, -3, 1e5, 0},
    {kPump, 20, -50, 1e5F, 10, 101500, 350},
};

TEST(ComponentLaw, ByHandInBothDirections) {
    const NetworkBuilder water;
    for (const auto& c : kComponents) {
        SCOPED_TRACE(c.value);
        for (const int sign : {1, -1}) {
            Component component;
            component.throughSign = sign;
            component.record = {.Name = "", .Kind = c.kind, .Param1 = c.param1, .Param2 = c.param2};
            component.record.PumpConstant = c.constant;
            const auto law = [&] {
                return ComponentLaw(water->settings, component, {.Diameter = 0.1F},
                                    sign * c.through, 1e5, 2e5);
            };
            EXPECT_EQ(law().value, 0) << "deleted";
            component.record.Placed = true;
            EXPECT_NEAR(law().value, c.value, 1e-6 * std::abs(c.value));
            EXPECT_NEAR(sign * law().byFlow, c.slope, 1e-6 * std::abs(c.slope));
            EXPECT_EQ(OpensUpwards(component.record), c.kind == kPump && c.param1 > 0);
        }
    }
}

TEST(MeanPressure, IsBoundedBelow) {
    NetworkBuilder air;
    air->settings.BasePressure = 1000;
    const struct {
        double start, end, mean, byStart, byEnd;
    } cases[] = {{1e5, 2e5, 252325, 0.5, 0.5},
                 {1e5, -5e5, 101162.5, 0.5, 0},  // half of the higher end's
                 {-5e5, 1e5, 101162.5, 0, 0.5},
                 {-5e5, -6e5, 1000, 0, 0}};
    for (const auto& c : cases) {
        const ByEndPressures mean = MeanPressureAt(air->settings, c.start, c.end);
        EXPECT_NEAR(mean.value, c.mean, 1e-9);
        EXPECT_EQ(mean.byStart, c.byStart);
        EXPECT_EQ(mean.byEnd, c.byEnd);
    }
}

}  // namespace
}  // namespace idrova
