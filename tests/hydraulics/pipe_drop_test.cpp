// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/pipe_drop.h"

#include <gtest/gtest.h>

#include <cmath>

namespace idrova {
namespace {

constexpr double kArea = 0.00785375;  ///< of a 0.1 m pipe, with pi as 3.1415
constexpr double kLength = 100;

Settings Water() {
    Settings settings;
    settings.FluidDensity = 1000;
    settings.FluidViscosity = 1e-3;
    return settings;
}

/// Mass flow in a 0.1 m water pipe.
double FlowAt(double reynolds) {
    return reynolds * kArea * 1e-3 / 0.1;
}

double DropOf(const Settings& settings, double flow, double meanPressure = kAtmosphere) {
    return PipeDrop(settings, 0.1, 0, flow, kLength, meanPressure);
}

TEST(SectionGeometry, CircleAndEquivalentCircleOfARectangle) {
    Settings settings = Water();
    EXPECT_DOUBLE_EQ(SectionGeometry(settings, 0.1, 0.5).area, kArea);
    EXPECT_EQ(SectionGeometry(settings, 0.1, 0.5).hydraulicDiameter, 0.1);
    settings.SectionType = Section::Rectangular;
    const SectionSize duct = SectionGeometry(settings, 0.2, 0.1);
    EXPECT_NEAR(duct.hydraulicDiameter, 0.15234, 5e-6);
    EXPECT_NEAR(duct.area, 0.018226, 5e-7);
}

struct FrictionCase {
    const char* name;
    double reynolds, roughness, factor, tolerance;
};

/// Worked out apart, Colebrook's equation by bisection; on the threshold the explicit formula
/// would give 0.009507.
constexpr FrictionCase kFriction[] = {
    {"sluggish", 5, 0, 0.7642110, 1e-7},
    {"smooth, explicit", 2000, 0, 0.01307941, 1e-8},
    {"rough, explicit", 2000, 1e-4, 0.01327522, 1e-8},
    {"just below the threshold", 4999.9, 0, 0.009506912, 1e-8},
    {"on the threshold", 5000, 0, 0.009361617, 5e-8},
    {"smooth", 1e5, 0, 0.004502132, 5e-8},
    {"rough", 1e5, 1e-4, 0.005544772, 5e-8},
    {"fully rough", 1e9, 1e-3, 0.009470276, 5e-8},
};

TEST(FrictionFactor, ExplicitBelowReynolds5000AndColebrookFromThere) {
    for (const FrictionCase& c : kFriction) {
        SCOPED_TRACE(c.name);
        Settings settings = Water();
        settings.Roughness = c.roughness;
        const double reynolds = c.reynolds * (1 + 1e-12);  // not below by rounding
        EXPECT_NEAR(FrictionFactor(settings, 0.1, 0, FlowAt(reynolds)), c.factor, c.tolerance);
    }
}

TEST(PipeDrop, OfALiquid) {
    const Settings settings = Water();
    EXPECT_NEAR(DropOf(settings, FlowAt(2000)), 10.620180, 1e-6);
    EXPECT_NEAR(DropOf(settings, FlowAt(1e5)), 11089.54, 0.1);
    EXPECT_EQ(DropOf(settings, 0), 0);
}

TEST(PipeDrop, MakesTheFlowPositive) {
    double flow = -3;
    EXPECT_EQ(PipeDrop(Water(), 0.1, 0, flow, kLength, kAtmosphere), DropOf(Water(), 3));
    EXPECT_EQ(flow, 3);
}

TEST(PipeDrop, OfARectangleIsThatOfItsEquivalentCircle) {
    Settings settings = Water();
    const double circle = DropOf(settings, 2);
    settings.SectionType = Section::Rectangular;
    const double side = 0.1 * std::pow(2, 0.25) / 1.3;  // a square with the circle's diameter
    double flow = 2;
    EXPECT_NEAR(PipeDrop(settings, side, side, flow, kLength, kAtmosphere), circle, 1e-9 * circle);
}

/// p1^2 - p2^2 = 4 f (L/D) (W/A)^2 Z R T / M, the exact law of isothermal flow.
TEST(PipeDrop, OfAGasFollowsTheIsothermalLaw) {
    Settings air = Water();
    air.FluidDensity = 1.2929;  // at 0 degrees Celsius and one atmosphere
    air.FluidViscosity = 1.8e-5;
    air.FluidCompressibility = 0.98;
    air.FluidTemperature = 20;
    air.EquationType = Equation::Compressible;
    const double specificConstant = 101325 / (1.2929 * 273.15);  // R / M
    for (const double flow : {0.001, 0.1, 0.5}) {
        const double p2 = 3 * kAtmosphere;
        double p1 = p2;
        for (int i = 0; i < 100; ++i) p1 = p2 + DropOf(air, flow, (p1 + p2) / 2);
        const double massVelocity = flow / kArea;
        const double squares = 4 * FrictionFactor(air, 0.1, 0, flow) * (kLength / 0.1) *
                               massVelocity * massVelocity * 0.98 * specificConstant * 293.15;
        EXPECT_NEAR((p1 * p1 - p2 * p2) / squares, 1, 1e-9);
    }
}

}  // namespace
}  // namespace idrova
